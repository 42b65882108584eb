// The plot of a graph, as its statements and its columns say.
#pragma once

#include <rapidjson/document.h>

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

/// @param graph  a graph object of a document
/// @throws PlotError  when a statement cannot be followed; says which one and why
Plot readPlot(const rapidjson::Value& graph);

}  // namespace report
