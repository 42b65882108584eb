// How far something long has come.
#pragma once

#include <cstddef>
#include <string>

namespace standin {

/// One line on a terminal that the standard error stream is shown on, "Drawing plots: 40 of 380", written over as the
/// work goes on. Elsewhere, and for little work, nothing is shown.
class ProgressLine {
public:
    explicit ProgressLine(std::string what);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// The line is gone once all is done.
    void show(std::size_t done, std::size_t total);

private:
    void clear();

    std::string what_;
    std::string shown_;
    std::size_t next_ = 0;  ///< how much must be done before the line is written again
};

}  // namespace standin
