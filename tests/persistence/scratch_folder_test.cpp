#include "persistence/scratch_folder.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tarnel {
namespace {

TEST(ScratchFolder, IsOneHoldersOwnAndGoesWithWhatLiesInIt) {
    const TemporaryFolder folder;
    const std::string parent = folder.path + "/Übungen";
    {
        const ScratchFolder first(parent), second(parent);
        EXPECT_NE(first.path(), second.path());
        std::ofstream(pathOf(first.path() + "/temp.ts")) << "a flight";
        EXPECT_FALSE(LockFile::take(first.path() + ".lock"));
        // What is locked no more was left behind.
        const auto left = pathOf(parent) / "scratch-1-0";
        std::filesystem::create_directories(left / "track");
        const ScratchFolder third(parent);
        EXPECT_FALSE(std::filesystem::exists(left));
        EXPECT_TRUE(std::filesystem::exists(pathOf(first.path() + "/temp.ts")));
    }
    EXPECT_TRUE(std::filesystem::is_empty(pathOf(parent)));
}

} // namespace
} // namespace tarnel
