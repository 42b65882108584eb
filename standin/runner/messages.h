// The runner's own messages.
#pragma once

#include <string>

namespace standin {

inline const char* const standardOutputFailed = "the standard output cannot be written";

/// Writes a message to the standard error stream, headed by the program's name.
void writeMessage(const std::string& text);

}  // namespace standin
