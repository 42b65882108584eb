// What a plot shows.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace report {

/// Values in pairs, of one length; they need not be finite.
struct PointLayer {
    std::vector<double> x;
    std::vector<double> y;
    bool dodged = false;  ///< points that would overlap are moved apart, to both sides alike
};

struct LineLayer {
    std::vector<double> x;
    std::vector<double> y;
    std::string legend;        ///< may be empty
    std::size_t category = 0;  ///< which of the plot's category variables colours it, as defined from 0 on
    bool dashed = false;
};

struct Plot {
    std::string title;
    std::string xLabel;
    std::string yLabel;
    std::string footnote;
    std::vector<PointLayer> points;
    std::vector<LineLayer> lines;  ///< in the order in which they are drawn
};

}  // namespace report
