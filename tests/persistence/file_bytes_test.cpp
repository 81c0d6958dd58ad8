#include "core/run_time_error.h"
#include "persistence/file_bytes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace tarnel {
namespace {

class FileBytesTest : public testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::create_directories(folder + "/charts");
        std::ofstream(folder + "/charts/Größe.map", std::ios::binary) << bytes;
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    int errorOf(const std::string& path, std::size_t limit) const {
        try {
            (void)readFileBytes(folder + path, limit);
        } catch (const RunTimeError& error) {
            return error.number();
        }
        return 0;
    }

    const std::string folder = testing::TempDir() + "tarnel_file_bytes_" +
                               testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::string bytes = std::string("a\r\n\0\xff", 5);
};

TEST_F(FileBytesTest, ComeAsTheyStandByEitherSeparator) {
    EXPECT_EQ(readFileBytes(folder + "\\charts\\Größe.map", 100), bytes);
    EXPECT_EQ(readFileBytes(folder + "/charts/Größe.map", 5), bytes);
}

TEST_F(FileBytesTest, FailuresTellTheirKind) {
    EXPECT_EQ(errorOf("/charts/none.map", 100), 53);
    EXPECT_EQ(errorOf("/charts", 100), 75);
    EXPECT_EQ(errorOf("/charts/Größe.map", 4), 62);
}

} // namespace
} // namespace tarnel
