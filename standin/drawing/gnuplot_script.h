// A chart as commands for gnuplot.
#pragma once

#include "standin/drawing/chart.h"

#include <string>

namespace standin {

/// The commands that draw the chart once, as SVG to gnuplot's standard output.
///
/// Everything that comes from outside reaches gnuplot as data: numbers in decimal, texts as quoted strings of which
/// every byte but letters and blanks is written as its octal code, so that nothing in them is run or
/// interpreted. Values that are not finite are left out. Texts too long for the picture are broken into lines.
///
/// @throws ChartError  when the values lie too far apart for axes
std::string gnuplotScript(const Chart& chart);

}  // namespace standin
