#include "text/utf8.h"

#include <utf8cpp/utf8.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace text {

namespace {

/// The length of the ASCII text without zeros that `text` begins with, in whole steps of eight bytes: most files are
/// nothing else, and eight bytes at once make the check cheap beside the reading.
std::size_t leadingAscii(std::string_view text)
{
    constexpr std::uint64_t ones = 0x0101010101010101U;
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::size_t length = 0;
    std::uint64_t eight = 0;
    for (; text.size() - length >= sizeof eight; length += sizeof eight) {
        std::memcpy(&eight, text.data() + length, sizeof eight);
        const std::uint64_t zeros = (eight - ones) & ~eight;
        if (((eight | zeros) & highBits) != 0) {
            break;
        }
    }
    return length;
}

}  // namespace

std::optional<std::size_t> firstBadUtf8Byte(std::string_view text)
{
    const std::string_view rest = text.substr(leadingAscii(text));
    const auto* const invalid = utf8::find_invalid(rest.begin(), rest.end());
    const auto* const bad = std::find(rest.begin(), invalid, '\0');
    return bad == rest.end() ? std::nullopt : std::optional(static_cast<std::size_t>(bad - text.begin()));
}

CodePoint codePointAt(std::string_view text, std::size_t offset)
{
    const auto* const begin = text.begin() + offset;
    const auto* end = begin;
    const char32_t value = utf8::unchecked::next(end);
    return {value, static_cast<std::size_t>(end - begin)};
}

std::size_t countCodePoints(std::string_view text)
{
    return static_cast<std::size_t>(utf8::unchecked::distance(text.begin(), text.end()));
}

std::size_t countLineEnds(std::string_view text)
{
    std::size_t ends = 0;
    char previous = 0;
    for (const char c : text) {
        const bool closesPair = c == '\n' && previous == '\r';
        if ((c == '\n' || c == '\r') && !closesPair) {
            ++ends;
        }
        previous = c;
    }
    return ends;
}

}  // namespace text
