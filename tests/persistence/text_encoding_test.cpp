#include "persistence/text_encoding.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace tarnel {
namespace {

std::string readBack(const std::string& bytes) {
    return toUtf8(bytes, encodingOf(bytes));
}

TEST(TextEncoding, IsFoundFromTheBytes) {
    EXPECT_EQ(readBack("K\xF6ln \x80 5 \x96 \xFF"), "Köln € 5 – ÿ");
    EXPECT_EQ(readBack("Köln € 5 – 日本 😀"), "Köln € 5 – 日本 😀");
    // Cut short, too long a form, surrogates, beyond the last character, lone bytes behind ASCII.
    for (const char* bytes : {"\xC3", "\xE2\x82", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80",
                              "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "12345678\x9Dx"})
        EXPECT_EQ(encodingOf(bytes), TextEncoding::windows1252) << bytes;
}

TEST(TextEncoding, FilesAreWrittenForEarlierInstallationsWhereThatIsPossible) {
    EXPECT_EQ(encodeForFile("plain"), "plain");
    EXPECT_EQ(encodeForFile("Köln €"), "K\xF6ln \x80");
    EXPECT_EQ(encodeForFile("Köln 日本"), "Köln 日本"); // no such byte
    EXPECT_EQ(encodeForFile("Ã¼"), "Ã¼");               // its bytes would be taken for an "ü"
}

RC_GTEST_PROP(TextEncoding, AnyBytesAreWrittenAgainAsTheSameText, (const std::string& bytes)) {
    const std::string text = readBack(bytes);
    RC_ASSERT(encodingOf(text) == TextEncoding::utf8);
    const std::string written = encodeForFile(text);
    RC_ASSERT(readBack(written) == text);
    RC_ASSERT(encodeForFile(readBack(written)) == written);
}

} // namespace
} // namespace tarnel
