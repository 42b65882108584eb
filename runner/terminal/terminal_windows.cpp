#include "runner/terminal/terminal.h"

#include <windows.h>

namespace runner {

namespace {

constexpr std::size_t usualWidth = 80;

HANDLE handleOf(StandardStream stream)
{
    return GetStdHandle(stream == StandardStream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

}  // namespace

bool isTerminal(StandardStream stream)
{
    DWORD mode = 0;
    return GetConsoleMode(handleOf(stream), &mode) != 0;
}

bool showsColours(StandardStream stream)
{
    DWORD mode = 0;
    return GetConsoleMode(handleOf(stream), &mode) != 0 &&
           SetConsoleMode(handleOf(stream), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

std::size_t terminalWidth(StandardStream stream)
{
    CONSOLE_SCREEN_BUFFER_INFO screen{};
    if (GetConsoleScreenBufferInfo(handleOf(stream), &screen) == 0) {
        return usualWidth;
    }
    const int width = screen.srWindow.Right - screen.srWindow.Left + 1;
    return width > 0 ? static_cast<std::size_t>(width) : usualWidth;
}

}  // namespace runner
