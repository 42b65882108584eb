#include "text/wrapping.h"

#include "text/unicode.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace text {
namespace {

using Lines = std::vector<std::string>;

TEST(WrapText, EndsLinesAtBlanksWhichVanishThereAndWhereTheTextDoes)
{
    EXPECT_EQ(wrapText("limits of agreement", 9), (Lines{"limits of", "agreement"}));
    EXPECT_EQ(wrapText("a  b    c ", 4), (Lines{"a  b", "c"}));
    EXPECT_EQ(wrapText(" a", 2), Lines{" a"});
    EXPECT_EQ(wrapText("   abc", 4), Lines{"abc"});
    EXPECT_EQ(wrapText("", 2), Lines{""});
    EXPECT_EQ(wrapText("  ", 2), Lines{""});
    EXPECT_EQ(wrapText("a\r\nb \n\nc\rd", 9), (Lines{"a", "b", "", "c", "d"}));
    EXPECT_EQ(wrapText("a b\n", 2), (Lines{"a", "b"}));
}

TEST(WrapText, BreaksAWordOnlyWhereItMust)
{
    EXPECT_EQ(wrapText("a wright1-mini1", 8), (Lines{"a", "wright1-", "mini1"}));
    EXPECT_EQ(wrapText("abcdefg h", 3), (Lines{"abc", "def", "g h"}));
    EXPECT_EQ(wrapText("95%信頼区間", 6), (Lines{"95%信", "頼区間"}));
    EXPECT_EQ(wrapText("平均，差異（単位）", 6), (Lines{"平均，", "差異", "（単", "位）"}));
    EXPECT_EQ(wrapText("平，", 2), (Lines{"平", "，"}));
    EXPECT_EQ(wrapText("ae\u0301i\u0301\u0323o", 2), (Lines{"ae\u0301", "i\u0301\u0323o"}));
    EXPECT_EQ(wrapText("か\u3099き\u3099", 2), (Lines{"か\u3099", "き\u3099"}));
}

TEST(WrapText, FillsNoLineBeyondTheWidthAndLosesNothingButBlanks)
{
    const std::string text =
        "Data are  log-transformed; 変換された（対数）データ。 Incomprehensibilities e\u0301le\u0300ve";
    const auto withoutBlanks = [](std::string line) { return std::erase(line, ' '), line; };
    for (std::size_t width = 2; width < 90; ++width) {
        std::string joined;
        for (const std::string& line : wrapText(text, width)) {
            EXPECT_LE(textWidth(line), width) << line;
            EXPECT_FALSE(line.empty() || line.starts_with(' ') || line.ends_with(' ')) << line;
            joined += withoutBlanks(line);
        }
        EXPECT_EQ(joined, withoutBlanks(text)) << width;
    }
}

TEST(WidestWord, IsTheNarrowestWidthThatBreaksNone)
{
    EXPECT_EQ(widestWord("limits of\nagreement "), 9U);
    EXPECT_EQ(widestWord("平均 値。a"), 5U);
    EXPECT_EQ(widestWord(" "), 0U);
}

}  // namespace
}  // namespace text
