// Draws with gnuplot.
#pragma once

#include "report/drawing/drawn_plot.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace report {

/// Draws with one process of gnuplot.
///
/// @param scripts  whole lines each, that draw one plot to the standard output; an error in one does not touch the
///                 next, and an empty one draws nothing
/// @param drawn    told how many scripts are done, as they are
/// @return         of each script, in their order, the SVG as gnuplot writes it, or the reason
/// @throws PlotError  when gnuplot cannot be run
std::vector<DrawnPlot> drawWithGnuplot(const std::vector<std::string>& scripts,
                                       const std::function<void(std::size_t)>& drawn);

}  // namespace report
