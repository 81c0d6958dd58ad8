#include "core/run_time_error.h"
#include "persistence/file_bytes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sys/stat.h>

namespace tarnel {
namespace {

Cause causeOf(const std::string& path) {
    try {
        (void)readFileBytes(path, 100);
    } catch (const RunTimeError& error) {
        return error.cause();
    }
    return Cause::invalidCall;
}

TEST(FileBytesOfPosix, ALinkAPipeAndANameWithABackslashAreToldApart) {
    const TemporaryFolder folder;
    std::ofstream(folder.path + "/charts\\Größe.map") << "of that very name";
    EXPECT_EQ(readFileBytes(folder.path + "/charts\\Größe.map", 100), "of that very name");
    std::filesystem::create_symlink("gone.map", folder.path + "/link.map");
    EXPECT_EQ(causeOf(folder.path + "/link.map"), Cause::linkLeadsNowhere);
    ASSERT_EQ(mkfifo((folder.path + "/pipe.map").c_str(), 0600), 0);
    EXPECT_EQ(causeOf(folder.path + "/pipe.map"), Cause::notAFile); // without waiting for a writer
}

} // namespace
} // namespace tarnel
