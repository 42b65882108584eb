// A chart as commands for gnuplot.
#pragma once

#include "report/plots/plot.h"

#include <string>

namespace report {

/// The commands that draw the chart once, as SVG to gnuplot's standard output.
///
/// What comes from outside reaches gnuplot as `gnuplotNumber` and `gnuplotText` alone. Values that are not finite are
/// left out; texts too long for the picture are broken into lines.
///
/// @throws ChartError  when the values are too large to be drawn
std::string gnuplotScript(const Chart& chart);

}  // namespace report
