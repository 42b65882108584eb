#include "module/settings/keyword_reader.h"

namespace bldatman {

std::string readKeyword(const ParamObj* parameter, const char* defaultText, LetterCase letterCase)
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

double readNumber(const ParamObj* parameter, double defaultNumber)
{
    double number = defaultNumber;
    return parameter != nullptr && parameter->getNumberValue(number) ? number : defaultNumber;
}

int readInteger(const ParamObj* parameter, int defaultNumber)
{
    int number = defaultNumber;
    return parameter != nullptr && parameter->getIntegerValue(number) ? number : defaultNumber;
}

const char* presence(const ParamObj* parameter)
{
    return parameter != nullptr ? "TRUE" : "FALSE";
}

}  // namespace bldatman
