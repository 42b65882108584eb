#include "standin/runner/progress_line.h"

#include "standin/runner/terminal.h"

#include <iostream>
#include <utility>

namespace standin {

namespace {

/// Less than this is done before a line could be read.
constexpr std::size_t littleWork = 20;

/// The line is written so many times, not for each step.
constexpr std::size_t steps = 100;

}  // namespace

ProgressLine::ProgressLine(std::string what)
    : what_(std::move(what))
{
}

ProgressLine::~ProgressLine()
{
    clear();
}

void ProgressLine::show(std::size_t done, std::size_t total)
{
    if (done == total) {
        clear();
        return;
    }
    if (total < littleWork || done < next_ || !isTerminal(StandardStream::Error)) {
        return;
    }
    shown_ = what_ + ": " + std::to_string(done) + " of " + std::to_string(total);
    std::cerr << '\r' << shown_ << std::flush;
    next_ = done + total / steps + 1;
}

void ProgressLine::clear()
{
    if (!shown_.empty()) {
        std::cerr << '\r' << std::string(shown_.size(), ' ') << '\r' << std::flush;
        shown_.clear();
    }
}

}  // namespace standin
