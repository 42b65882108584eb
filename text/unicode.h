// What kind of character a code point is.
#pragma once

#include <cstddef>
#include <string_view>

namespace text {

/// True for letters of any alphabet with their marks, and for decimal digits.
bool isLetterOrDigit(char32_t character);

/// True for characters that do something to a line of text instead of showing in it: control characters, the separators
/// of lines and paragraphs, and those that turn the direction of what follows.
bool isControl(char32_t character);

/// True for blanks of any kind, for tabs and for what ends lines.
bool isWhiteSpace(char32_t character);

/// The columns of a terminal that a character takes: two for the scripts of East Asia and for pictographs, none for
/// combining marks, else one.
std::size_t characterWidth(char32_t character);

/// The columns that a well-formed UTF-8 text takes.
std::size_t textWidth(std::string_view text);

}  // namespace text
