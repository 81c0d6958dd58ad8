#include "core/run_time_error.h"
#include "persistence/file_bytes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tarnel {
namespace {

class FileBytesTest : public testing::Test {
  protected:
    FileBytesTest() {
        std::filesystem::create_directories(temporary.at / "charts");
        std::ofstream(pathOf(folder + "/charts/Größe.map"), std::ios::binary) << bytes;
    }

    Cause causeOf(const std::string& path, std::size_t limit = 100) const {
        try {
            (void)readFileBytes(folder + path, limit);
        } catch (const RunTimeError& error) {
            return error.cause();
        }
        return Cause::invalidCall;
    }

    const TemporaryFolder temporary;
    const std::string folder = temporary.path;
    const std::string bytes = std::string("a\r\n\0\xff", 5);
};

TEST_F(FileBytesTest, ComeAsTheyStandByEitherSeparator) {
    EXPECT_EQ(readFileBytes(folder + "\\charts\\Größe.map", 100), bytes);
    EXPECT_EQ(readFileBytes(folder + "/charts/Größe.map", 5), bytes);
}

TEST_F(FileBytesTest, FailuresTellTheirKind) {
    EXPECT_EQ(causeOf("/charts/none.map"), Cause::fileNotFound);
    EXPECT_EQ(causeOf("/charts/\xEF\xBF\xBD.map"), Cause::nameNotUtf8);
    EXPECT_EQ(causeOf("/charts"), Cause::notAFile);
    EXPECT_EQ(causeOf("/charts/Größe.map", 4), Cause::fileTooLarge);
}

} // namespace
} // namespace tarnel
