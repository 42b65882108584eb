#include "standin/runner/output_style.h"

#include "standin/runner/terminal.h"

#include <algorithm>
#include <cstdlib>

namespace standin {

namespace {

constexpr std::size_t leastWidth = 40;

bool coloursAreWelcome()
{
    const char* refusal = std::getenv("NO_COLOR");
    return (refusal == nullptr || *refusal == '\0') && showsColours(StandardStream::Output);
}

}  // namespace

TextStyle standardOutputStyle()
{
    if (!isTerminal(StandardStream::Output)) {
        return {};
    }
    return {std::max(terminalWidth(StandardStream::Output), leastWidth), coloursAreWelcome()};
}

}  // namespace standin
