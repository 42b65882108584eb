#include "standin/text.h"

#include <algorithm>

namespace standin {

std::string inQuotes(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

std::string upperCase(std::string_view text)
{
    std::string result(text);
    std::ranges::transform(result, result.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return result;
}

}  // namespace standin
