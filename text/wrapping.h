// Breaks texts into lines.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace text {

/// The text in lines of at most `width` columns of a terminal, each as full as it can be; the empty text is one empty
/// line. A line ends
///  - where one ends in the text: at CR LF, LF or CR;
///  - at blanks, which vanish there, while those inside a line stay;
///  - between two wide characters (see `characterWidth`), though no line begins with a closing mark such as a comma, or
///    ends with an opening bracket;
///  - inside a word only where the word alone is wider than a line.
/// Combining marks stay with the character before them.
///
/// @param text   well-formed UTF-8
/// @param width  at least 2, the room of a wide character
std::vector<std::string> wrapText(std::string_view text, std::size_t width);

/// The narrowest width at which no word of the text is broken.
std::size_t widestWord(std::string_view text);

}  // namespace text
