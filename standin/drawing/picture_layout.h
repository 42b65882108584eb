// Where the parts of a chart's picture stand, and its texts broken into the lines that fit there.
#pragma once

#include "standin/drawing/chart.h"

#include <string>
#include <vector>

namespace standin {

/// One line of the legend: lines of the chart with one legend text are drawn alike and named once.
struct LegendEntry {
    std::vector<std::string> text;  ///< in lines
    int colour;                     ///< a different one for each entry, from 0
    bool dashed;
};

/// From top to bottom: title, plot, marks and label of the horizontal axis, legend, footnote. Lengths are in the
/// picture's own units, pixels when it is shown at full size; places are counted from the top edge.
struct PictureLayout {
    explicit PictureLayout(const Chart& chart);

    static constexpr int width = 640;
    static constexpr int plotHeight = 360;
    static constexpr int lineHeight = 21;
    static constexpr int titleLineHeight = 26;

    std::vector<std::string> title;
    std::vector<std::string> xLabel;
    std::vector<std::string> yLabel;
    std::vector<LegendEntry> legend;
    std::vector<std::string> footnote;

    std::vector<std::size_t> entryOfLine;  ///< for each line of the chart its place in the legend

    int plotTop;
    int legendTop;
    int footnoteTop;
    int height;
};

}  // namespace standin
