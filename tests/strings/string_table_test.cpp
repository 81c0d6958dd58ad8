#include "core/run_time_error.h"
#include "strings/string_table.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnel {
namespace {

int errorNumberOf(const StringTable& table, int id) {
    try {
        (void)table.at(id);
    } catch (const RunTimeError& error) {
        EXPECT_NE(error.source().find(std::to_string(id)), std::string::npos);
        return error.number();
    }
    return 0;
}

TEST(StringTables, TellTheirLanguage) {
    EXPECT_TRUE(germanTable().isGerman());
    EXPECT_FALSE(englishTable().isGerman());
    EXPECT_EQ(englishTable()[Text::languageWord], "english");
}

TEST(StringTables, GiveTheSameBookPagesInBothLanguages) {
    for (int index = 0; index <= 64; ++index) {
        SCOPED_TRACE(index);
        const int page = germanTable().bookPage(index);
        EXPECT_EQ(std::to_string(page), germanTable().at(370 + index));
        EXPECT_EQ(englishTable().bookPage(index), page);
    }
    for (const int outside : {-1, 65, 80}) // 80 would be a caption behind the pages
        EXPECT_THROW((void)germanTable().bookPage(outside), RunTimeError) << outside;
}

TEST(StringTable, RefusesUnknownNumbers) {
    for (const int id : {-1, 0, 99, 123, 283, 369, 435, 9999}) // below, in the gaps and behind
        EXPECT_EQ(errorNumberOf(englishTable(), id), RunTimeError::subscriptOutOfRange) << id;
}

} // namespace
} // namespace tarnel
