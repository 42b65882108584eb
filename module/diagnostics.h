// The module's lines on the standard error stream, its only way to speak outside the output document.
#pragma once

#include <string_view>

namespace bldatman {

/// Writes `text` as one line.
void reportLine(std::string_view text);

/// To be called while an exception is handled: reports it as one line, `prefix` followed by "Standard exception: " and
/// the error's text, or by "Unknown exception occurred." for anything that is not a standard exception.
void reportCurrentException(std::string_view prefix);

}  // namespace bldatman
