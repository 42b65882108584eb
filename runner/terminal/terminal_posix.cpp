#include "runner/terminal/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace runner {

namespace {

constexpr std::size_t usualWidth = 80;

int descriptorOf(StandardStream stream)
{
    return stream == StandardStream::Output ? STDOUT_FILENO : STDERR_FILENO;
}

}  // namespace

bool isTerminal(StandardStream stream)
{
    return isatty(descriptorOf(stream)) == 1;
}

bool showsColours(StandardStream stream)
{
    const char* kind = std::getenv("TERM");
    return isTerminal(stream) && kind != nullptr && std::strcmp(kind, "dumb") != 0;
}

std::size_t terminalWidth(StandardStream stream)
{
    winsize size{};
    const int status = ioctl(descriptorOf(stream), TIOCGWINSZ, &size);  // NOLINT(cppcoreguidelines-pro-type-vararg)
    return status == 0 && size.ws_col > 0 ? size.ws_col : usualWidth;
}

}  // namespace runner
