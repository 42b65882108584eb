// Small things that messages and keywords are made of.
#pragma once

#include <string>
#include <string_view>

namespace text {

/// The text in double quotes, as messages name things.
std::string inQuotes(std::string_view text);

/// ASCII letters in upper case; keywords are compared so.
std::string upperCase(std::string_view text);

/// The text as it can be shown within one line: line ends, tabs and the like as blanks, other control characters and
/// bytes that are not UTF-8 as U+FFFD, so that no name or label can break a layout or steer a terminal.
std::string printable(std::string_view text);

}  // namespace text
