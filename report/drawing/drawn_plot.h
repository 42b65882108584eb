// What came of drawing a plot.
#pragma once

#include <string>

namespace report {

/// A plot as SVG, or the reason why there is none.
struct DrawnPlot {
    std::string svg = {};     ///< from <svg> to </svg>; empty where there is a reason
    std::string reason = {};  ///< to follow "cannot be drawn: "; no full stop
    std::string title = {};   ///< the accessible name of the SVG
    std::string xLabel = {};  ///< of the horizontal axis; empty where the graph's statements cannot be followed
};

}  // namespace report
