// Texts as the system takes and gives them.
#pragma once

#include <string>
#include <string_view>

namespace text {

/// UTF-8 as UTF-16; what is not UTF-8 becomes a substitute.
std::wstring wideText(std::string_view text);

/// UTF-16 as UTF-8.
std::string utf8Text(std::wstring_view text);

/// The system's words for one of its error codes, without a line end.
std::string systemMessage(unsigned long error);

}  // namespace text
