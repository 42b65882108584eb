#include "standin/runner/progress_line.h"

#include "standin/runner/terminal.h"

#include <iostream>
#include <utility>

namespace standin {

namespace {

/// Who waits for less does not ask how far it is.
constexpr std::chrono::seconds patience{1};

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

void ProgressLine::show(const std::string& what, std::size_t done, std::size_t total, const std::string& unit)
{
    if (done == total) {
        clear();
        return;
    }
    if (!onTerminal_ || Clock::now() - begin_ < patience) {
        return;
    }
    std::string line = what + ": " + std::to_string(done) + (total == 0 ? "" : " of " + std::to_string(total)) + unit;
    if (line != shown_) {
        clear();
        std::cerr << line << std::flush;
        shown_ = std::move(line);
    }
}

void ProgressLine::clear()
{
    if (!shown_.empty()) {
        std::cerr << '\r' << std::string(shown_.size(), ' ') << '\r' << std::flush;
        shown_.clear();
    }
}

}  // namespace standin
