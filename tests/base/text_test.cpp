#include "base/text.h"

#include <gtest/gtest.h>

#include <clocale>

namespace tarvane {

TEST(Text, NumbersIgnoreTheLocaleAndRefuseRubbish) {
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(ParseDouble(" 1.5 "), 1.5);
    EXPECT_EQ(ParseDouble("+.25"), 0.25);
    EXPECT_EQ(ParseInt("+7"), 7);
    EXPECT_EQ(ParseInt("-32768"), -32768);
    EXPECT_EQ(FormatDouble(0.25), "0.25");
    std::setlocale(LC_ALL, "C");
    for (const char* bad : {"", " ", "1,5", "1.5x", "+-3", "+", "nan", "inf", "1e999", "--2", "0x10"}) {
        EXPECT_FALSE(ParseDouble(bad)) << bad;
        EXPECT_FALSE(ParseInt(bad)) << bad;
    }
    EXPECT_FALSE(ParseInt("9223372036854775808"));
}

TEST(Text, CutsBetweenCharactersOnly) {
    const std::string name = "Jos\xC3\xA9 Mu\xC3\xB1oz";
    EXPECT_EQ(Utf8Length(name), 10U);
    EXPECT_EQ(Utf8Truncate(name, 4), "Jos\xC3\xA9");
    EXPECT_EQ(Utf8Truncate(name, 3), "Jos");
    EXPECT_EQ(Utf8Truncate(name, 99), name);
    EXPECT_EQ(Utf8Truncate("\xE2\x82", 1), "\xE2\x82");  // cut off by someone else: still one character
    EXPECT_EQ(Utf8Length("\xFF\x80z"), 3U);
}

TEST(Text, ComparesWithoutCase) {
    EXPECT_TRUE(EqualsIgnoreCase("KorvTeams", "KORVTEAMS"));
    EXPECT_FALSE(EqualsIgnoreCase("a", "ab"));
    EXPECT_LT(CompareIgnoreCase("Roll9", "roll9color"), 0);
    EXPECT_LT(CompareIgnoreCase("a", "\xC3\xA9"), 0);
    EXPECT_EQ(Trim("\t x y \r\n"), "x y");
    EXPECT_EQ(TrimRight("  x  "), "  x");
    EXPECT_EQ(Trim("   "), "");
}

}  // namespace tarvane
