// Puts texts into columns of a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace standin {

/// The text with blanks before it, after it, or on both sides, to fill `width` columns.
std::string alignedRight(std::string_view text, std::size_t width);
std::string alignedLeft(std::string_view text, std::size_t width);
std::string centred(std::string_view text, std::size_t width);

}  // namespace standin
