#include "report/plots/plot_area.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <set>
#include <utility>

namespace report {

namespace {

constexpr double margin = 0.05;

/// The unit of the plot on which a value falls.
int unitOf(double value, const AxisRange& axis, int length)
{
    return static_cast<int>((value - axis.low) / (axis.high - axis.low) * length);
}

std::vector<PlotPoint> finitePoints(const std::vector<double>& x, const std::vector<double>& y)
{
    std::vector<PlotPoint> points;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (std::isfinite(x[i]) && std::isfinite(y[i])) {
            points.push_back({x[i], y[i]});
        }
    }
    return points;
}

bool isLevel(const LineLayer& line)
{
    return !line.y.empty() && std::isfinite(line.y.front()) &&
           std::ranges::adjacent_find(line.y, std::not_equal_to<>()) == line.y.end();
}

}  // namespace

PlotArea::PlotArea(const Plot& plot, int width, int height)
    : width_(width)
    , height_(height)
{
    AxisExtent x;
    AxisExtent y;
    for (const PointLayer& layer : plot.points) {
        x.include(layer.x);
        y.include(layer.y);
    }
    x.widen(margin);
    for (const LineLayer& line : plot.lines) {
        x.include(line.x);
        y.include(line.y);
    }
    y.widen(margin);
    xRange_ = x.range();
    yRange_ = y.range();
}

std::vector<PlotPoint> PlotArea::pointsOf(const PointLayer& layer) const
{
    std::vector<PlotPoint> points = finitePoints(layer.x, layer.y);
    if (!layer.dodged) {
        std::set<std::pair<int, int>> taken;
        std::erase_if(points, [&](const PlotPoint& point) {
            return !taken.emplace(unitOf(point.x, xRange_, width_), unitOf(point.y, yRange_, height_)).second;
        });
    }
    return points;
}

std::vector<PlotPoint> PlotArea::pointsOf(const LineLayer& line) const
{
    std::vector<PlotPoint> points = finitePoints(line.x, line.y);
    if (isLevel(line) && (points.size() < line.x.size() || isTooShortToSee(line))) {
        points = {{xRange_.low, line.y.front()}, {xRange_.high, line.y.front()}};
    }
    return points;
}

bool PlotArea::isTooShortToSee(const LineLayer& line) const
{
    const auto [least, largest] = std::ranges::minmax(line.x);
    return (largest - least) / (xRange_.high - xRange_.low) * width_ < 1.0;
}

}  // namespace report
