#include "persistence/save_file_fixture.h"
#include "platform/process.h"
#include "support/own_device.h"

#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

constexpr uid_t someUser = 65534;

class SaveFileOnPosix : public SaveFileTest {
  protected:
    /// Saves in a process of its own that first calls `prepare`. Returns how it ended.
    int saveInChild(DiskCalls& disk, const std::function<void()>& prepare) const {
        const pid_t child = fork();
        if (child == 0) {
            prepare();
            _exit(errorOf([&] { saveFileBytes(path, after, disk); }));
        }
        int status = 0;
        waitpid(child, &status, 0);
        return status;
    }
};

TEST_F(SaveFileOnPosix, KeepsPermissionsAndTakesAnyName) {
    saveFileBytes(path, before);
    fs::permissions(path, fs::perms(0640));
    saveFileBytes(path, after);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    for (const char* name : {"back\\slash.ts", "not UTF-8 \xFC.ts"}) {
        saveFileBytes(folder + "/" + name, before);
        EXPECT_EQ(readFileBytes(folder + "/" + name, most), before);
    }
    EXPECT_EQ(filesInFolder(), 3U);
    EXPECT_TRUE(meansDiskFull(EDQUOT));
}

TEST_F(SaveFileOnPosix, ALinkStaysAndItsTargetChanges) {
    fs::create_directory(folder + "/real");
    const std::string real = folder + "/real/flight.ts";
    fs::create_symlink("real/flight.ts", path); // which is not there yet
    for (const std::string& bytes : {before, after}) {
        saveFileBytes(path, bytes);
        EXPECT_TRUE(fs::is_symlink(path));
        EXPECT_EQ(readFileBytes(real, most), bytes);
    }
}

TEST_F(SaveFileOnPosix, AGroupsFileStaysTheGroups) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may give files to others";
    constexpr gid_t group = 12345;
    const auto saveAs = [&](uid_t user) {
        saveFileBytes(path, before);
        EXPECT_EQ(chown(path.c_str(), 0, group), 0);
        fs::permissions(path, fs::perms(0676));
        fs::permissions(folder, fs::perms(0777));
        DiskCalls disk;
        EXPECT_EQ(saveInChild(disk, [user] { EXPECT_EQ(setuid(user), 0); }), 0);
        struct stat found {};
        EXPECT_EQ(stat(path.c_str(), &found), 0);
        return found;
    };
    const struct stat kept = saveAs(0);
    EXPECT_EQ(kept.st_gid, group);
    EXPECT_EQ(kept.st_mode & 0777, 0676U);
    const struct stat lost = saveAs(someUser);
    EXPECT_NE(lost.st_gid, group);
    EXPECT_EQ(lost.st_mode & 0777, 0666U) << "no more than everybody has";
}

TEST_F(SaveFileOnPosix, KilledAtAnyCallTheFileIsWhole) {
    saveFileBytes(path, before);
    for (int call = 1; call <= callsOfASave; ++call) {
        TroubledDisk disk(call, [] { return kill(getpid(), SIGKILL); });
        const int status = saveInChild(disk, [] {});
        ASSERT_TRUE(WIFSIGNALED(status)) << call;
        EXPECT_EQ(content(), before) << call;
    }
    const std::size_t left = filesInFolder();
    EXPECT_GT(left, 1U);
    saveFileBytes(path, after); // what was left behind is not in the way
    EXPECT_EQ(filesInFolder(), left) << "it may be another computer's";
    std::ofstream(folder + "/.tarnel-notes.tmp") << "the user's own";
    for (const auto& file : fs::directory_iterator(folder))
        fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::minutes(2));
    saveFileBytes(path, after);
    EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(SaveFileOnPosix, AFullDiskIsToldAndLeavesTheFile) {
    saveFileBytes(path, before);
    DiskCalls disk;
    const int status = saveInChild(disk, [] {
        const rlimit smallFiles{2000, 2000};
        setrlimit(RLIMIT_FSIZE, &smallFiles);
        makeFileSizeLimitAnError();
    });
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 61);
    EXPECT_EQ(content(), before);
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(SaveFileOnPosix, RefusesWhatIsNoFileToWriteOrMayNotBeWritten) {
    const std::string full = deviceAt(folder + "/full", Device::full);
    for (const auto& [name, error] :
         {std::pair(folder, 75), {full, 75}, {folder + "/none/flight.ts", 76}, {"", 76}})
        EXPECT_EQ(errorOf([&, file = name] { saveFileBytes(file, after); }), error) << name;
    saveFileBytes(path, before);
    fs::permissions(path, fs::perms(0444));
    fs::permissions(folder, fs::perms(0777)); // its folder would let it be replaced
    DiskCalls disk;
    const int status = saveInChild(disk, [] {
        if (geteuid() == 0 && setuid(someUser) != 0) // root may write everything
            _exit(1);
    });
    EXPECT_EQ(WEXITSTATUS(status), 75);
    EXPECT_EQ(content(), before);
}

} // namespace
} // namespace tarnel
