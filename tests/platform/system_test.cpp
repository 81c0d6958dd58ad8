#include "platform/files.h"
#include "platform/local_peer.h"
#include "platform/process.h"
#include "platform/user.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <limits>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

TEST(System, NamesAreUtf8) {
    const TemporaryFolder folder;
    const std::string name = folder.path + "/Flug über Ω.ts";
    std::ofstream(pathOf(name)) << "x";
    EXPECT_EQ(textOf(fs::directory_iterator(folder.at)->path()), name);
    EXPECT_EQ(textOf(pathOf(name).filename()), "Flug über Ω.ts");
}

TEST(System, TellsWhatAFileIs) {
    const TemporaryFolder folder;
    const fs::path file = folder.at / "a", other = folder.at / "b";
    std::ofstream(file) << "four";
    std::ofstream(other) << "";
    const auto facts = factsOf(file);
    ASSERT_TRUE(facts && factsOf(other) && factsOf(folder.at));
    EXPECT_TRUE(facts->isRegular);
    EXPECT_FALSE(factsOf(folder.at)->isRegular);
    EXPECT_EQ(facts->size, 4U);
    const auto now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    EXPECT_NEAR(static_cast<double>(facts->changed), static_cast<double>(now), 60);
    EXPECT_TRUE(areOneFile(*facts, *factsOf(openToRead(file).get())));
    EXPECT_FALSE(areOneFile(*facts, *factsOf(other)));
    EXPECT_FALSE(factsOf(folder.at / "none"));
    EXPECT_EQ(errno, ENOENT);
}

TEST(System, KnowsProgramsAndTheUser) {
    EXPECT_TRUE(isRunning(ownProcess()));
    EXPECT_FALSE(isRunning(std::numeric_limits<int>::max() - 3));
    EXPECT_TRUE(fs::exists(programFile()));
    EXPECT_TRUE(pathOf(dataFolder()).is_absolute());
    EXPECT_EQ(environment("TARNEL_NOT_SET"), "");
    EXPECT_NE(environment("PATH"), "");
}

TEST(System, NobodyListensWhereNobodyDoes) {
    const TemporaryFolder folder;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    EXPECT_FALSE(handOver(folder.path + "/none", "x", end));
}

} // namespace
} // namespace tarnel
