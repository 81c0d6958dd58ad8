#include "core/run_time_error.h"
#include "persistence/file_bytes.h"
#include "persistence/save_file.h"
#include "support/own_device.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t most = 1 << 20;
constexpr uid_t someUser = 65534;

/// A disk that does something at the n-th call, and writes no more than 1000 bytes at a time.
class TroubledDisk : public DiskCalls {
  public:
    TroubledDisk(int callNumber, std::function<int()> whatHappens)
        : troubleAt(callNumber), trouble(std::move(whatHappens)) {}

    int create(const char* path) override { return meets() ? -1 : DiskCalls::create(path); }
    ssize_t write(int file, const char* bytes, std::size_t count) override {
        constexpr std::size_t part = 1000;
        return meets() ? -1 : DiskCalls::write(file, bytes, std::min(count, part));
    }
    int fsync(int file) override { return meets() ? -1 : DiskCalls::fsync(file); }
    int close(int file) override {
        const int closed = DiskCalls::close(file);
        return meets() ? -1 : closed;
    }
    int rename(const char* from, const char* to) override {
        return meets() ? -1 : DiskCalls::rename(from, to);
    }

    int calls = 0;

  private:
    bool meets() {
        if (++calls != troubleAt)
            return false;
        errno = trouble();
        return true;
    }

    int troubleAt;
    std::function<int()> trouble;
};

/// A disk that has a file under the first name that is tried for a new one.
class TakenNameDisk : public DiskCalls {
  public:
    int create(const char* path) override {
        if (taken.empty()) {
            taken = path;
            ::close(DiskCalls::create(path));
        }
        return DiskCalls::create(path);
    }

    std::string taken;
};

class SaveFileTest : public testing::Test {
  protected:
    std::string content() const { return readFileBytes(path, most); }
    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
    }
    Cause causeOf(const std::function<void()>& save) const {
        try {
            save();
        } catch (const RunTimeError& error) {
            return error.cause();
        }
        return Cause::invalidCall;
    }
    int errorOf(const std::function<void()>& save) const {
        const Cause cause = causeOf(save);
        return cause == Cause::invalidCall ? 0 : RunTimeError(cause).number();
    }

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

    const TemporaryFolder temporary;
    const std::string folder = temporary.path;
    const std::string path = folder + "/Flug über Köln.ts";
    const std::string before = "what was there\r\n";
    const std::string after = std::string(3500, 'x') + "\r\n"; // four writes
    static constexpr int callsOfASave = 8;
};

TEST_F(SaveFileTest, MakesAndReplacesFiles) {
    saveFileBytes(path, before);
    EXPECT_EQ(content(), before);
    fs::permissions(path, fs::perms(0640));
    TroubledDisk disk(0, [] { return 0; });
    saveFileBytes(path, after, disk);
    EXPECT_EQ(disk.calls, callsOfASave);
    EXPECT_EQ(content(), after);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    saveFileBytes(path, "");
    EXPECT_EQ(content(), "");
    EXPECT_EQ(filesInFolder(), 1U);
    for (const char* name : {"back\\slash.ts", "not UTF-8 \xFC.ts"}) {
        saveFileBytes(folder + "/" + name, before);
        EXPECT_EQ(readFileBytes(folder + "/" + name, most), before);
    }
    EXPECT_EQ(filesInFolder(), 3U);
}

TEST_F(SaveFileTest, WritesIntoNoFileThatIsInTheWay) {
    TakenNameDisk disk;
    saveFileBytes(path, after, disk);
    EXPECT_EQ(content(), after);
    EXPECT_EQ(readFileBytes(disk.taken, most), "");
}

TEST_F(SaveFileTest, ALinkStaysAndItsTargetChanges) {
    fs::create_directory(folder + "/real");
    const std::string real = folder + "/real/flight.ts";
    fs::create_symlink("real/flight.ts", path); // which is not there yet
    for (const std::string& bytes : {before, after}) {
        saveFileBytes(path, bytes);
        EXPECT_TRUE(fs::is_symlink(path));
        EXPECT_EQ(readFileBytes(real, most), bytes);
    }
}

TEST_F(SaveFileTest, AGroupsFileStaysTheGroups) {
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

TEST_F(SaveFileTest, AFailureAtAnyCallLeavesTheFileAsItWas) {
    const std::pair<int, Cause> cases[] = {
        {ENOSPC, Cause::diskFull},      {EDQUOT, Cause::diskFull},
        {EFBIG, Cause::diskFull},       {EROFS, Cause::diskReadOnly},
        {EIO, Cause::deviceError},      {ENAMETOOLONG, Cause::nameTooLong},
        {EACCES, Cause::folderReadOnly}};
    EXPECT_EQ(RunTimeError(Cause::deviceError).number(), 57);
    saveFileBytes(path, before);
    for (const auto& [error, cause] : cases)
        for (int call = 1; call <= callsOfASave; ++call) {
            TroubledDisk disk(call, [error] { return error; });
            EXPECT_EQ(causeOf([&] { saveFileBytes(path, after, disk); }), cause) << call;
            EXPECT_EQ(content(), before) << call;
            EXPECT_EQ(filesInFolder(), 1U) << call;
        }
    TroubledDisk interrupted(3, [] { return EINTR; });
    saveFileBytes(path, after, interrupted);
    EXPECT_EQ(content(), after);
}

TEST_F(SaveFileTest, KilledAtAnyCallTheFileIsWhole) {
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

TEST_F(SaveFileTest, AFullDiskIsToldAndLeavesTheFile) {
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

TEST_F(SaveFileTest, RefusesWhatIsNoFileToWriteOrMayNotBeWritten) {
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
