// How far something long has come.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace runner {

/// One line on a terminal that the standard error stream is shown on, "Drawing plots: 40 of 380", written over as the
/// work goes on, some times a second. Elsewhere, and before the work has taken a second, nothing is shown.
class ProgressLine {
public:
    /// The work begins now.
    ProgressLine();

    /// The line is gone when the work is over, or has failed.
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// What is being done, and how far it is. Where both are too wide for the terminal, the latter alone is shown.
    void show(const std::string& what, const std::string& howFar);

    void clear();

private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point begin_;
    Clock::time_point lastTime_;
    std::string what_;
    std::size_t shownWidth_ = 0;
    bool onTerminal_;
};

}  // namespace runner
