#include "text/wording.h"

#include "text/unicode.h"
#include "text/utf8.h"

#include <algorithm>

namespace text {

namespace {

constexpr std::string_view substitute = "\uFFFD";

/// The text with a substitute for every byte that is not part of UTF-8.
std::string wellFormed(std::string_view text)
{
    std::string result;
    while (const auto bad = firstBadUtf8Byte(text)) {
        result += text.substr(0, *bad);
        result += substitute;
        text.remove_prefix(*bad + 1);
    }
    return result += text;
}

}  // namespace

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

std::string printable(std::string_view text)
{
    const std::string characters = wellFormed(text);
    std::string result;
    for (std::size_t i = 0; i < characters.size();) {
        const auto [character, length] = codePointAt(characters, i);
        if (isControl(character)) {
            result += isWhiteSpace(character) ? " " : substitute;
        } else {
            result.append(characters, i, length);
        }
        i += length;
    }
    return result;
}

}  // namespace text
