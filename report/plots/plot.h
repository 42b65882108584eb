// What a graph of a document shows, as its statements and its columns say.
#pragma once

#include <rapidjson/document.h>

#include <cstddef>
#include <stdexcept>
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
    std::size_t category = 0;  ///< which of the chart's category variables colours it, as defined from 0 on
    bool dashed = false;
};

struct Chart {
    std::string title;
    std::string xLabel;
    std::string yLabel;
    std::string footnote;
    std::vector<PointLayer> points;
    std::vector<LineLayer> lines;  ///< in the order in which they are drawn
};

/// A chart whose statements cannot be followed; `what()` says which one and why.
class ChartError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// @param graph  a graph object of a document
/// @throws ChartError
Chart readChart(const rapidjson::Value& graph);

}  // namespace report
