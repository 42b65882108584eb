// Reads one keyword of a parsed subcommand. `parameter` is null when the keyword was not given; then, and where its
// getter fails, the result is the default.
#pragma once

#include "host/command_parser.h"

#include <string>

namespace bldatman {

/// How a keyword's text is asked for.
enum class LetterCase {
    Upper,      ///< `getUpStringGeneric`
    AsWritten,  ///< `getStringOrLiteral`
};

std::string readKeyword(const ParamObj* parameter, const char* defaultText, LetterCase letterCase);

double readNumber(const ParamObj* parameter, double defaultNumber);

int readInteger(const ParamObj* parameter, int defaultNumber);

/// "TRUE" when the keyword was given, else "FALSE".
const char* presence(const ParamObj* parameter);

}  // namespace bldatman
