#include "runner/terminal/progress_line.h"

#include "runner/terminal/terminal.h"
#include "text/unicode.h"

#include <iostream>

namespace runner {

namespace {

/// Who waits for less does not ask how far it is.
constexpr std::chrono::seconds patience{1};

/// Nobody reads faster.
constexpr std::chrono::milliseconds pause{100};

}  // namespace

ProgressLine::ProgressLine()
    : begin_(Clock::now())
    , onTerminal_(isTerminal(StandardStream::Error))
{
}

ProgressLine::~ProgressLine()
{
    clear();
}

void ProgressLine::show(const std::string& what, const std::string& howFar)
{
    const auto now = Clock::now();
    if (!onTerminal_ || now - begin_ < patience || (what == what_ && now - lastTime_ < pause)) {
        return;
    }
    lastTime_ = now;
    what_ = what;
    const std::string whole = what + ": " + howFar;
    const std::string& line = text::textWidth(whole) < terminalWidth(StandardStream::Error) ? whole : howFar;
    clear();
    std::cerr << line << std::flush;
    shownWidth_ = text::textWidth(line);
}

void ProgressLine::clear()
{
    if (shownWidth_ > 0) {
        std::cerr << '\r' << std::string(shownWidth_, ' ') << '\r' << std::flush;
        shownWidth_ = 0;
    }
}

}  // namespace runner
