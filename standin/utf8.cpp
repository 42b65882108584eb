#include "standin/utf8.h"

#include "standin/input_error.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace standin {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF"sv;

/// What may follow a first byte. The range of the second byte is what shuts out overlong forms, surrogates and code
/// points above U+10FFFF; every later byte is a plain continuation.
struct SequenceForm {
    std::size_t length = 0;  ///< 0: no sequence begins with this byte
    unsigned char secondLow = 0x80;
    unsigned char secondHigh = 0xBF;
};

SequenceForm formOf(unsigned char first)
{
    if (first < 0x80) {
        return {first == 0 ? 0U : 1U};
    }
    if (first < 0xC2 || first > 0xF4) {
        return {0};
    }
    if (first < 0xE0) {
        return {2};
    }
    if (first < 0xF0) {
        return {3, static_cast<unsigned char>(first == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(first == 0xED ? 0x9F : 0xBF)};
    }
    return {4, static_cast<unsigned char>(first == 0xF0 ? 0x90 : 0x80),
            static_cast<unsigned char>(first == 0xF4 ? 0x8F : 0xBF)};
}

unsigned char byteAt(std::string_view text, std::size_t offset)
{
    return static_cast<unsigned char>(text[offset]);
}

bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0U) == 0x80;
}

/// The length of the well-formed sequence that begins at `offset`, 0 if none does.
std::size_t sequenceLengthAt(std::string_view text, std::size_t offset)
{
    const SequenceForm form = formOf(byteAt(text, offset));
    if (form.length < 2) {
        return form.length;
    }
    if (text.size() - offset < form.length) {
        return 0;
    }
    const unsigned char second = byteAt(text, offset + 1);
    if (second < form.secondLow || second > form.secondHigh) {
        return 0;
    }
    for (std::size_t i = 2; i < form.length; ++i) {
        if (!isContinuation(byteAt(text, offset + i))) {
            return 0;
        }
    }
    return form.length;
}

/// The first offset from `offset` on that is not in a run of eight ASCII characters: most files are little else, and
/// eight bytes at once make the check cheap beside the reading.
std::size_t skipAscii(std::string_view text, std::size_t offset)
{
    constexpr std::uint64_t ones = 0x0101010101010101U;
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::uint64_t eight = 0;
    for (; text.size() - offset >= sizeof eight; offset += sizeof eight) {
        std::memcpy(&eight, text.data() + offset, sizeof eight);
        const std::uint64_t zeros = (eight - ones) & ~eight;
        if (((eight | zeros) & highBits) != 0) {
            break;
        }
    }
    return offset;
}

struct Encoding {
    std::string_view mark;
    std::string_view name;
};

/// The longer marks first: one begins like a shorter one.
constexpr std::array<Encoding, 4> otherEncodings{{{"\xFF\xFE\0\0"sv, "UTF-32 (little-endian)"},
                                                  {"\0\0\xFE\xFF"sv, "UTF-32 (big-endian)"},
                                                  {"\xFF\xFE"sv, "UTF-16 (little-endian)"},
                                                  {"\xFE\xFF"sv, "UTF-16 (big-endian)"}}};

std::string hexadecimal(unsigned char byte)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    return {'0', 'x', digits[byte / 16U], digits[byte % 16U]};
}

}  // namespace

std::optional<std::size_t> firstBadUtf8Byte(std::string_view text)
{
    for (std::size_t offset = 0; (offset = skipAscii(text, offset)) < text.size();) {
        const std::size_t length = sequenceLengthAt(text, offset);
        if (length == 0) {
            return offset;
        }
        offset += length;
    }
    return std::nullopt;
}

CodePoint codePointAt(std::string_view text, std::size_t offset)
{
    const unsigned char first = byteAt(text, offset);
    const std::size_t length = formOf(first).length;
    if (length < 2) {
        return {first, 1};
    }
    char32_t value = first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        value = (value << 6U) | (byteAt(text, offset + i) & 0x3FU);
    }
    return {value, length};
}

std::size_t countCodePoints(std::string_view text)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char byte) { return !isContinuation(static_cast<unsigned char>(byte)); }));
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

std::string_view requireUtf8(std::string_view bytes, const std::string& fileName)
{
    for (const Encoding& encoding : otherEncodings) {
        if (bytes.starts_with(encoding.mark)) {
            throw InputError(fileName, "this file is " + std::string(encoding.name) + "; save it as UTF-8");
        }
    }
    if (bytes.starts_with(utf8Mark)) {
        bytes.remove_prefix(utf8Mark.size());
    }
    if (const auto bad = firstBadUtf8Byte(bytes)) {
        const std::size_t line = countLineEnds(bytes.substr(0, *bad)) + 1;
        throw InputError(fileName, line,
                         "byte " + hexadecimal(byteAt(bytes, *bad)) + " is not UTF-8; save the file as UTF-8");
    }
    return bytes;
}

}  // namespace standin
