#include "text/wording.h"

#include <gtest/gtest.h>

#include <string>

namespace text {
namespace {

using namespace std::string_literals;

TEST(Printable, LetsNothingThroughThatWouldMoveOrHideText)
{
    EXPECT_EQ(printable("身長 e\u0301 – \u00A0x"), "身長 e\u0301 – \u00A0x");
    EXPECT_EQ(printable("a\tb\r\nc\u0085d\u2028e"), "a b  c d e");
    EXPECT_EQ(printable("\x1B[31mred\u009B0m\x7F"s), "\uFFFD[31mred\uFFFD0m\uFFFD");
    EXPECT_EQ(printable("\u202Eabc\u202C\u2066d\u2069"), "\uFFFDabc\uFFFD\uFFFDd\uFFFD");
    EXPECT_EQ(printable("\0a\xFF\xE8\xBA"s), "\uFFFDa\uFFFD\uFFFD\uFFFD");
}

}  // namespace
}  // namespace text
