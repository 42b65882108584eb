#include "standin/runner/output_style.h"

#include "standin/runner/terminal.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace standin {

namespace {

constexpr std::size_t leastWidth = 40;

std::string environmentVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool coloursAreWelcome()
{
    return environmentVariable("NO_COLOR").empty() && environmentVariable("TERM") != "dumb";
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
