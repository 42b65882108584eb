// Puts texts into columns of a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace report {

/// The text with blanks before it, after it, or on both sides, to fill `width` columns.
std::string alignedRight(std::string_view text, std::size_t width);
std::string alignedLeft(std::string_view text, std::size_t width);
std::string centred(std::string_view text, std::size_t width);

/// The text in lines of at most `width` columns, of which the first begins with `first`, the others with `rest`.
std::vector<std::string> hangingLines(const std::string& first, const std::string& rest, std::string_view text,
                                      std::size_t width);

/// The columns that the widest of some texts takes; 0 where there is none.
std::size_t widest(const std::vector<std::string>& texts);

}  // namespace report
