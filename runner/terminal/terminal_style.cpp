#include "runner/terminal/terminal_style.h"

#include "runner/terminal/terminal.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace runner {

namespace {

constexpr std::size_t leastWidth = 40;

bool coloursAreWelcome()
{
    const char* refusal = std::getenv("NO_COLOR");
    return (refusal == nullptr || *refusal == '\0') && showsColours(StandardStream::Output);
}

}  // namespace

report::TextStyle standardOutputStyle()
{
    if (!isTerminal(StandardStream::Output)) {
        return {};
    }
    return {std::max(terminalWidth(StandardStream::Output), leastWidth), coloursAreWelcome()};
}

}  // namespace runner
