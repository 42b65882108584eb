// Small questions about UTF-8 texts.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace text {

/// The offset of the first byte that is not part of well-formed UTF-8: where a sequence is cut short or not allowed,
/// the offset of its first byte. A zero byte counts as one that is not.
std::optional<std::size_t> firstBadUtf8Byte(std::string_view text);

/// One decoded character: its code point and how many bytes it takes.
struct CodePoint {
    char32_t value;
    std::size_t length;
};

/// The character that begins at `offset` of a well-formed text; `offset` is below the text's size.
CodePoint codePointAt(std::string_view text, std::size_t offset);

/// How many characters a well-formed text holds.
std::size_t countCodePoints(std::string_view text);

/// How many lines end in the text, at CR LF, LF or a lone CR, mixed freely. One more is the number of the line that
/// follows the text.
std::size_t countLineEnds(std::string_view text);

}  // namespace text
