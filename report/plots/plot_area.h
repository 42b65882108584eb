// Of a plot what can be drawn: the stretch of its axes, and the points within it.
#pragma once

#include "report/plots/axis_range.h"
#include "report/plots/plot.h"

#include <vector>

namespace report {

struct PlotPoint {
    double x;
    double y;
};

class PlotArea {
public:
    /// Shows all finite values, with a margin around the points, and above and below the lines, which reach the ends of
    /// their axis. `width` and `height` are those of the plot, in units that can be told apart.
    ///
    /// @throws PlotError  when the values are too large to be drawn
    PlotArea(const Plot& plot, int width, int height);

    const AxisRange& xRange() const { return xRange_; }
    const AxisRange& yRange() const { return yRange_; }

    /// The finite points. Of those that are not moved apart and fall on one unit of the plot, where they look like
    /// one, the first.
    std::vector<PlotPoint> pointsOf(const PointLayer& layer) const;

    /// The finite points of a line. A level that ends nowhere, or is too short to be seen as where all points have one
    /// place on the axis, is drawn across.
    std::vector<PlotPoint> pointsOf(const LineLayer& line) const;

private:
    bool isTooShortToSee(const LineLayer& line) const;

    AxisRange xRange_{};
    AxisRange yRange_{};
    int width_;
    int height_;
};

}  // namespace report
