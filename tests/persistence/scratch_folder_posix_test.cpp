#include "persistence/scratch_folder.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

TEST(ScratchFolderOnPosix, IsGoneAfterAnyEnd) {
    const TemporaryFolder folder;
    const std::string parent = folder.path + "/scratch";
    std::ofstream(folder.path + "/beside") << "another's";
    {
        const ScratchFolder first(parent);
        std::ofstream(first.path() + "/temp.ts") << "a flight";
        const pid_t killed = fork();
        if (killed == 0) {
            const ScratchFolder left(parent);
            std::ofstream(left.path() + "/temp.ts") << "a flight";
            _exit(left.path() == first.path() ? 1 : 0);
        }
        int status = -1;
        waitpid(killed, &status, 0);
        EXPECT_EQ(status, 0);
        EXPECT_GT(std::distance(fs::directory_iterator(parent), {}), 2);
        const ScratchFolder second(parent);
        EXPECT_NE(second.path(), first.path());
        EXPECT_TRUE(fs::exists(first.path() + "/temp.ts"));
        EXPECT_EQ(std::distance(fs::directory_iterator(parent), {}), 4) << "two, with their locks";
    }
    EXPECT_TRUE(fs::is_empty(parent));
    EXPECT_EQ(ScratchFolder(folder.path + "/beside").path(), "");
}

} // namespace
} // namespace tarnel
