// The runner's own messages.
#pragma once

#include <string>

namespace runner {

/// Writes a message to the standard error stream, headed by the program's name.
void writeMessage(const std::string& text);

}  // namespace runner
