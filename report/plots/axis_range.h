// The stretch of an axis that a plot needs.
#pragma once

#include <vector>

namespace report {

struct AxisRange {
    double low;
    double high;
};

/// A distance of marks, 1, 2, 2.5 or 5 times a power of ten, that puts at most so many marks on the axis, at least 2.
double markDistance(const AxisRange& axis, int mostMarks);

/// Grows over the finite ones of the values given to it.
class AxisExtent {
public:
    void include(const std::vector<double>& values);

    /// Adds the given share of the width so far at both ends.
    void widen(double share);

    /// Never empty: around a single value it is as wide as the value's size suggests, and without any it is -1 to 1.
    ///
    /// @throws PlotError  when the values are too large to be drawn
    AxisRange range() const;

private:
    bool empty_ = true;
    double low_ = 0.0;
    double high_ = 0.0;
};

}  // namespace report
