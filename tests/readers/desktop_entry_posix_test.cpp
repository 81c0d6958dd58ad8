#include "readers/desktop_entry.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace tarnel {
namespace {

class DesktopEntryTest : public testing::Test {
  protected:
    /// The words behind the program with "|" before each; "none" for an entry that can't be used.
    std::string wordsOf(const std::string& lines) {
        std::ofstream(folder.at / "a.desktop") << "# a comment\n[Other]\nExec=cat %f\n"
                                                  "[Desktop Entry]\r\nType = Application\n"
                                                  "Name=100 %\nName[de]=Nein\nIcon=eye\n"
                                               << lines << "\n[Desktop Action x]\nExec=cat x\n";
        const auto entry = readDesktopEntry(folder.path + "/a.desktop", folders);
        std::string words = entry ? "" : "none";
        if (entry)
            for (const std::string& word : entry->words)
                words += "|" + word;
        return words;
    }

    TemporaryFolder folder;
    DesktopFolders folders{[](const char* name) {
        return std::string(std::string_view(name) == "PATH" ? "bin:/usr/bin:/bin" : "");
    }};
};

TEST_F(DesktopEntryTest, ItsLineIsReadAsTheSpecificationSays) {
    EXPECT_EQ(wordsOf("Exec=cat %U\nExec=cat twice"), "|%u");
    EXPECT_EQ(wordsOf("Exec = cat  -a\t%F "), "|-a|%f");
    EXPECT_EQ(wordsOf("Exec=\"/bin/cat\" --at=%f"), "|--at=%f");
    EXPECT_EQ(wordsOf("Exec=cat"), "|%f");
    EXPECT_EQ(wordsOf("Exec=cat %i %c %d%m %v 5%%"), "|--icon|eye|100 %%|5%%|%f");
    EXPECT_EQ(wordsOf(R"(Exec=cat "two words" "a \\"b\\" \\$c \\\\ %u 5%%" "" %f)"),
              R"(|two words|a "b" $c \ %%u 5%%||%f)");
    EXPECT_EQ(wordsOf("Exec=cat %k"), "|" + folder.path + "/a.desktop|%f");
    EXPECT_EQ(wordsOf("Exec=cat $(id);%f\nTryExec=/bin/cat"), "|$(id);%f");
}

TEST_F(DesktopEntryTest, WhatCannotBeStartedIsNone) {
    for (const char* lines :
         {"", "Exec=", "Exec=cat \"open", "Exec=cat %x", "Exec=cat %", "Exec=not-installed",
          "Exec=bin/cat", "Exec=/etc/passwd %f", "Exec=cat\nTryExec=not-installed",
          "Exec=cat\nHidden=true", "Exec=cat\nTerminal=true"})
        EXPECT_EQ(wordsOf(lines), "none") << lines;
    std::filesystem::create_directory(folder.at / "folder.desktop");
    EXPECT_FALSE(readDesktopEntry(folder.path + "/folder.desktop", folders));
}

} // namespace
} // namespace tarnel
