#include "exercises/statistics.h"
#include "persistence/lock_file.h"
#include "support/own_device.h"
#include "window/frame/file_settings.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnel {
namespace {

class FileSettingsTest : public testing::Test {
  protected:
    std::string content() const {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void write(const std::string& text) const {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << text;
    }

    QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("new/settings.ini")).toStdString();
};

TEST_F(FileSettingsTest, TextsSurviveARestartAndOneFlushWritesThem) {
    const std::pair<std::string, std::string> texts[] = {{"hsi_total 12", "4"},
                                                         {"Übung/a\\b %2F",
                                                          " groß, \"quoted\";\n\x01"
                                                          "a 100% \\"},
                                                         {"empty", ""},
                                                         {"sign", "@x"}};
    {
        FileSettings settings(path);
        for (const auto& [key, text] : texts)
            settings.setValue("app", "stats", key, text);
        settings.setValue("app", "old", "key", "1");
        EXPECT_EQ(content(), "");
        settings.flush();
        settings.deleteSection("app", "old");
    }
    const FileSettings again(path);
    for (const auto& [key, text] : texts)
        EXPECT_EQ(again.value("app", "stats", key, "-"), text);
    EXPECT_EQ(again.value("app", "old", "key", "-"), "-");
}

TEST_F(FileSettingsTest, WhatWasEditedByHandComesBackAndNothingElseIsLost) {
    write("nonsense\n[app]\nstats\\a = one, two \nstats\\b=@Variant(\\0\\0)\nstats\\c=\"12\"x\n"
          "stats\\hsi_total%207=3\n;stats\\no=1\nloose=5\n[other]\r\nx\\y=3\r\n\xff\xfe[\n");
    for (const bool again : {false, true}) { // a change writes it anew
        FileSettings settings(path);
        for (const auto& [key, text] : {std::pair("a", "one, two"),
                                        {"c", "12x"},
                                        {"hsi_total 7", "3"},
                                        {"d", again ? "8" : "-"}})
            EXPECT_EQ(settings.value("app", "stats", key, "-"), text) << again;
        EXPECT_EQ(settings.value("other", "x", "y", "-"), "3");
        settings.setValue("app", "stats", "d", "8");
    }
}

TEST_F(FileSettingsTest, TwoProgramsCountTogether) {
    constexpr int answers = 100;
    const auto countInChild = [&](int question) {
        const pid_t child = fork();
        if (child != 0)
            return child;
        {
            FileSettings settings(path);
            Statistics statistics(settings);
            for (int i = 0; i < answers; ++i)
                statistics.count("hsipos", question, 1, i % 2 == 0);
            settings.setValue("app", "window", question == 0 ? "first" : "second", "x");
        }
        _exit(0);
    };
    write("");
    FileSettings running(path); // which has read the file before
    const pid_t children[] = {countInChild(0), countInChild(1)};
    for (const pid_t child : children)
        waitpid(child, nullptr, 0);
    Statistics(running).count("hsipos", 0, 1, true);
    const FileSettings after(path);
    EXPECT_EQ(after.value("qxr1", "stats", "hsipos_total", "-"), "201");
    EXPECT_EQ(after.value("qxr1", "stats", "hsipos_total 1", "-"), "100");
    EXPECT_EQ(after.value("qxr1", "stats", "hsipos_bad", "-"), "100");
    EXPECT_EQ(after.value("app", "window", "first", "-"), "x");
    EXPECT_EQ(after.value("app", "window", "second", "-"), "x");
}

TEST_F(FileSettingsTest, WhatCanNotBeReadOrReplacedDelaysNothingAndIsToldOnce) {
    struct Case {
        const char* name;
        std::function<void()> prepare;
        Cause cause;
    };
    std::optional<LockFile> held;
    const auto link = [&](Device kind) {
        return [this, kind] {
            std::filesystem::create_symlink(deviceAt(path + "device", kind), path);
        };
    };
    const Case cases[] = {
        {"pipe", [&] { ASSERT_EQ(mkfifo(path.c_str(), 0600), 0); }, Cause::notAFile},
        {"folder", [&] { std::filesystem::create_directory(path); }, Cause::notAFile},
        {"device", link(Device::null), Cause::notAFile},
        {"endless", link(Device::zero), Cause::notAFile},
        {"large", [&] { write(std::string(largestSettings + 1, '\n')); }, Cause::fileTooLarge},
        {"held", [&] { held.emplace(std::move(*LockFile::take(path + ".lock"))); },
         Cause::fileInUse},
    };
    for (const Case& c : cases) {
        std::filesystem::remove_all(std::filesystem::path(path).parent_path());
        std::filesystem::create_directory(std::filesystem::path(path).parent_path());
        c.prepare();
        const auto before = std::filesystem::symlink_status(path).type();
        QElapsedTimer timer;
        timer.start();
        FileSettings settings(path);
        Statistics statistics(settings);
        for (int i = 0; i < 5; ++i)
            statistics.count("hsipos", 0, 0, true);
        EXPECT_LT(timer.elapsed(), 1000) << c.name;
        EXPECT_EQ(statistics.of("hsipos").total, 5) << c.name; // as long as the program lasts
        const auto trouble = settings.takeTrouble();
        ASSERT_TRUE(trouble) << c.name;
        EXPECT_EQ(trouble->cause, c.cause) << c.name;
        EXPECT_FALSE(settings.takeTrouble()) << c.name;
        EXPECT_EQ(std::filesystem::symlink_status(path).type(), before) << c.name;
        if (c.cause == Cause::fileTooLarge) {
            EXPECT_EQ(std::filesystem::file_size(path), largestSettings + 1);
        }
        if (held) { // what was counted meanwhile is kept as soon as that is possible
            held.reset();
            settings.flush();
            EXPECT_EQ(Statistics(settings).of("hsipos").total, 5);
            EXPECT_NE(content(), "");
        }
    }
}

TEST_F(FileSettingsTest, TheFileNeverGrowsBeyondWhatCanBeReadAgain) {
    const std::string full = "[a]\nb\\c=" + std::string(largestSettings - 20, 'x');
    write(full);
    FileSettings settings(path);
    Statistics(settings).count("hsipos", 0, 0, true);
    EXPECT_EQ(settings.takeTrouble().value().cause, Cause::fileTooLarge);
    EXPECT_TRUE(content() == full);
}

} // namespace
} // namespace tarnel
