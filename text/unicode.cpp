#include "text/unicode.h"

#include "text/utf8.h"

#include <boost/spirit/home/support/char_encoding/unicode/query.hpp>

#include <algorithm>
#include <array>

namespace text {

namespace {

using boost::spirit::ucd::properties;

struct Range {
    char32_t first;
    char32_t last;
};

constexpr Range directionEmbeddings = {0x202A, 0x202E};
constexpr Range directionIsolates = {0x2066, 0x2069};

constexpr std::array<Range, 12> wideRanges = {{
    {0x1100, 0x115F},
    {0x2E80, 0x303E},
    {0x3041, 0x33FF},
    {0x3400, 0x4DBF},
    {0x4E00, 0x9FFF},
    {0xA000, 0xA4CF},
    {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F},
    {0xFF00, 0xFF60},
    {0x1F300, 0x1FAFF},
    {0x20000, 0x3FFFD},
}};

bool isIn(const Range& range, char32_t character)
{
    return character >= range.first && character <= range.last;
}

}  // namespace

bool isLetterOrDigit(char32_t character)
{
    const auto major = boost::spirit::ucd::get_major_category(character);
    return major == properties::letter || major == properties::mark || boost::spirit::ucd::is_decimal_number(character);
}

bool isControl(char32_t character)
{
    const auto category = boost::spirit::ucd::get_category(character);
    return category == properties::control || category == properties::line_separator ||
           category == properties::paragraph_separator || isIn(directionEmbeddings, character) ||
           isIn(directionIsolates, character);
}

bool isWhiteSpace(char32_t character)
{
    return boost::spirit::ucd::is_white_space(character);
}

std::size_t characterWidth(char32_t character)
{
    if (boost::spirit::ucd::get_category(character) == properties::nonspacing_mark) {
        return 0;
    }
    const bool wide =
        std::ranges::any_of(wideRanges, [character](const Range& range) { return isIn(range, character); });
    return wide ? 2 : 1;
}

std::size_t textWidth(std::string_view text)
{
    std::size_t width = 0;
    for (std::size_t i = 0; i < text.size();) {
        const CodePoint character = codePointAt(text, i);
        width += characterWidth(character.value);
        i += character.length;
    }
    return width;
}

}  // namespace text
