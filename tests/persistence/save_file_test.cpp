#include "persistence/save_file_fixture.h"

namespace tarnel {
namespace {

/// A disk that has a file under the first name that is tried for a new one.
class TakenNameDisk : public DiskCalls {
  public:
    int create(const char* path) override {
        if (taken.empty()) {
            taken = path;
            DiskCalls::close(DiskCalls::create(path));
        }
        return DiskCalls::create(path);
    }

    std::string taken;
};

TEST_F(SaveFileTest, MakesAndReplacesFiles) {
    saveFileBytes(path, before);
    EXPECT_EQ(content(), before);
    TroubledDisk disk(0, [] { return 0; });
    saveFileBytes(path, after, disk);
    EXPECT_EQ(disk.calls, callsOfASave);
    EXPECT_EQ(content(), after);
    saveFileBytes(path, "");
    EXPECT_EQ(content(), "");
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(SaveFileTest, WritesIntoNoFileThatIsInTheWay) {
    TakenNameDisk disk;
    saveFileBytes(path, after, disk);
    EXPECT_EQ(content(), after);
    EXPECT_EQ(readFileBytes(disk.taken, most), "");
}

TEST_F(SaveFileTest, AFailureAtAnyCallLeavesTheFileAsItWas) {
    const std::pair<int, Cause> cases[] = {
        {ENOSPC, Cause::diskFull},          {EFBIG, Cause::diskFull},
        {EROFS, Cause::diskReadOnly},       {EIO, Cause::deviceError},
        {ENAMETOOLONG, Cause::nameTooLong}, {EACCES, Cause::folderReadOnly}};
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

} // namespace
} // namespace tarnel
