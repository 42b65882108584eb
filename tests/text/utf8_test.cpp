#include "text/utf8.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <string>

namespace text {
namespace {

using namespace std::string_literals;

TEST(Utf8, FindsTheFirstByteThatIsNotWellFormed)
{
    const std::map<std::string, std::size_t> texts{
        {"\x80"s, 0},         {"\xC0\x80"s, 0},         {"\xC1\xBF"s, 0},         {"\xE0\x9F\xBF"s, 0},
        {"\xED\xA0\x80"s, 0}, {"\xF0\x8F\xBF\xBF"s, 0}, {"\xF4\x90\x80\x80"s, 0}, {"\xF5\x80\x80\x80"s, 0},
        {"\xFF"s, 0},         {"12345678\0"s, 8},       {"123456\0008"s, 6},      {"\xC3\xA9\xE2\x82"s, 2},
        {"a\xE2\x82!"s, 1},   {"a\xF0\x9F\x98("s, 1},   {"1234567\xE9 12345"s, 7}};
    for (const auto& [text, offset] : texts) {
        EXPECT_EQ(firstBadUtf8Byte(text), offset) << testing::PrintToString(text);
        EXPECT_EQ(firstBadUtf8Byte("12345678abcdefg" + text), offset + 15) << testing::PrintToString(text);
    }
}

TEST(Utf8, DecodesWhatTheEncodingCanHold)
{
    const std::string text = "\u0001\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF";
    std::u32string decoded;
    for (std::size_t i = 0; i < text.size(); i += codePointAt(text, i).length) {
        decoded += codePointAt(text, i).value;
    }
    EXPECT_EQ(decoded, U"\u0001\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF");
    EXPECT_FALSE(firstBadUtf8Byte(text));
    EXPECT_EQ(countCodePoints(text), decoded.size());
}

}  // namespace
}  // namespace text
