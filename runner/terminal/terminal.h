// The terminals that the program's output may be shown on.
#pragma once

#include <cstddef>

namespace runner {

enum class StandardStream { Output, Error };

/// True when what is written to the stream is shown on a terminal.
bool isTerminal(StandardStream stream);

/// True when the stream is shown on a terminal that colours what it is told to.
bool showsColours(StandardStream stream);

/// The columns of the terminal that the stream is shown on; 80 where it does not tell.
std::size_t terminalWidth(StandardStream stream);

}  // namespace runner
