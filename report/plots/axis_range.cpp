#include "report/plots/axis_range.h"

#include "report/plots/plot_error.h"

#include <algorithm>
#include <cmath>

namespace report {

namespace {

/// Closer together, relative to their size, values cannot be told apart on an axis: the marks would all read alike.
constexpr double smallestRelativeWidth = 1e-9;

/// Gnuplot calculates with some multiples of the ends of an axis.
constexpr double largestEnd = 1e300;

}  // namespace

double markDistance(const AxisRange& axis, int mostMarks)
{
    const double least = (axis.high - axis.low) / mostMarks;
    const double exponent = std::floor(std::log10(least));
    // Exact powers, whose quotients and products are the same on every platform.
    const double power = exponent < 0.0 ? 1.0 / std::pow(10.0, -exponent) : std::pow(10.0, exponent);
    for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
        if (factor * power >= least) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

void AxisExtent::include(const std::vector<double>& values)
{
    for (const double value : values) {
        if (std::isfinite(value)) {
            low_ = empty_ ? value : std::min(low_, value);
            high_ = empty_ ? value : std::max(high_, value);
            empty_ = false;
        }
    }
}

void AxisExtent::widen(double share)
{
    const double margin = high_ * share - low_ * share;
    low_ -= margin;
    high_ += margin;
}

AxisRange AxisExtent::range() const
{
    const double size = std::max(std::abs(low_), std::abs(high_));
    if (!(size <= largestEnd)) {
        throw PlotError("its values are too large for an axis");
    }
    if (high_ - low_ <= size * smallestRelativeWidth) {
        const double around = size > 0.0 ? size / 10 : 1.0;
        return {low_ - around, high_ + around};
    }
    return {low_, high_};
}

}  // namespace report
