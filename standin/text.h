// Small things that messages and keywords are made of.
#pragma once

#include <string>
#include <string_view>

namespace standin {

/// The text in double quotes, as messages name things.
std::string inQuotes(std::string_view text);

/// ASCII letters in upper case; keywords are compared so.
std::string upperCase(std::string_view text);

}  // namespace standin
