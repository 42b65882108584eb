// How far something long has come.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace standin {

/// One line on a terminal that the standard error stream is shown on, "Drawing plots: 40 of 380", written over as the
/// work goes on. Elsewhere, and before the work has taken a second, nothing is shown.
class ProgressLine {
public:
    /// The work begins now.
    ProgressLine();
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// The line is gone once all of `what` is done.
    /// @param total  0 where it is not known
    void show(const std::string& what, std::size_t done, std::size_t total, const std::string& unit = {});

private:
    using Clock = std::chrono::steady_clock;

    void clear();

    Clock::time_point begin_;
    bool onTerminal_;
    std::string shown_;
};

}  // namespace standin
