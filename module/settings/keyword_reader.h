// Reads one keyword of a parsed subcommand. `parameter` is null when the keyword was not given; then, and where its
// getter fails, the result is the default, whatever the getter has left behind.
//
// The host's getters may be constant or not: `Param` is whichever it hands out.
#pragma once

#include <string>

namespace bldatman {

/// How a keyword's text is asked for.
enum class LetterCase {
    Upper,      ///< `getUpStringGeneric`
    AsWritten,  ///< `getStringOrLiteral`
};

template <class Param>
std::string readKeyword(Param* parameter, const char* defaultText, LetterCase letterCase)
{
    if (parameter == nullptr) {
        return defaultText;
    }
    std::string text = defaultText;
    bool isLiteral = false;
    const bool delivered = letterCase == LetterCase::Upper ? parameter->getUpStringGeneric(text)
                                                           : parameter->getStringOrLiteral(text, isLiteral);
    return delivered ? text : defaultText;
}

template <class Param>
double readNumber(Param* parameter, double defaultNumber)
{
    double number = defaultNumber;
    return parameter != nullptr && parameter->getNumberValue(number) ? number : defaultNumber;
}

template <class Param>
int readInteger(Param* parameter, int defaultNumber)
{
    int number = defaultNumber;
    return parameter != nullptr && parameter->getIntegerValue(number) ? number : defaultNumber;
}

/// "TRUE" when the keyword was given, else "FALSE".
template <class Param>
const char* presence(Param* parameter)
{
    return parameter != nullptr ? "TRUE" : "FALSE";
}

}  // namespace bldatman
