// Why a plot cannot be drawn.
#pragma once

#include <stdexcept>

namespace report {

/// Whatever stands in the way, from a statement that cannot be read to a gnuplot that is not there; `what()` is the
/// reason, without a full stop.
class PlotError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace report
