#include "persistence/cipher.h"
#include "support/enciphered.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <numeric>
#include <set>
#include <string>

namespace tarnel {
namespace {

TEST(Cipher, Key7GivesTheKnownTable) {
    EXPECT_EQ(Shuffle2(7), (KeyTable{8, 12, 5, 9, 11, 3, 14, 6, 7, 15, 4, 2, 13, 10, 1, 0}));
}

TEST(Cipher, EveryKeyGivesAnOrderOfItsOwn) {
    KeyTable counted{};
    std::iota(counted.begin(), counted.end(), std::uint8_t{0});
    std::set<KeyTable> tables;
    for (int key = lowestKey; key <= highestKey; ++key) {
        KeyTable table = Shuffle2(key);
        tables.insert(table);
        std::ranges::sort(table);
        EXPECT_EQ(table, counted) << key;
    }
    EXPECT_EQ(tables.size(), 99U);
}

TEST(Cipher, ThePlaceInTheKeyRunsOnFromLineToLine) {
    std::string text = ":v1\r\n\r\n\nab\r\nc"; // 3A^8 76^12 31^5 61^9 62^11 63^3
    Cipher(7).Encrypt(text);
    EXPECT_EQ(text, "2z4\r\n\r\n\nhi\r\n`");
}

TEST(Cipher, DrawnKeysReachBothEndsAndNoFurther) {
    RuntimeRandom random;
    std::set<int> keys;
    for (int i = 0; i < 5000; ++i)
        keys.insert(drawKey(random));
    EXPECT_EQ(keys.size(), 99U);
    EXPECT_EQ(*keys.begin(), 1);
    EXPECT_EQ(*keys.rbegin(), 99);
}

RC_GTEST_PROP(Cipher, LinesOfAnyLengthComeBack, ()) {
    const auto lines = *rc::gen::container<std::vector<std::string>>(
        rc::gen::container<std::string>(rc::gen::inRange(' ', '\x7f')));
    std::string text;
    for (const std::string& line : lines)
        text += line + (line.size() % 2 == 0 ? "\r\n" : "\n");
    std::string changed = text;
    Cipher encipher(7);
    const std::size_t cut = text.find('\n') + 1; // given in two parts
    encipher.Encrypt(std::span(changed).first(cut));
    encipher.Encrypt(std::span(changed).subspan(cut));
    RC_ASSERT(changed == encipheredWithKey7(text));
    Cipher(7).Decrypt(changed);
    RC_ASSERT(changed == text);
}

} // namespace
} // namespace tarnel
