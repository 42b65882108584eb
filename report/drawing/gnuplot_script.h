// A plot as commands for gnuplot.
#pragma once

#include "report/plots/plot.h"

#include <string>

namespace report {

/// The commands that draw the plot once, as SVG to gnuplot's standard output.
///
/// What comes from outside reaches gnuplot as `gnuplotNumber` and `gnuplotText` alone. Values that are not finite are
/// left out; texts too long for the plot are broken into lines.
///
/// @throws PlotError  when the values are too large to be drawn
std::string gnuplotScript(const Plot& plot);

}  // namespace report
