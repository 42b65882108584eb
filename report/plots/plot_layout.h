// Where the parts of a plot stand, and its texts broken into the lines that fit there.
#pragma once

#include "report/plots/plot.h"

#include <cstddef>
#include <string>
#include <vector>

namespace report {

/// One line of the legend: lines of the plot with one legend text are drawn alike and named once.
struct LegendEntry {
    std::vector<std::string> text;  ///< in lines
    std::size_t category;           ///< of the first of its lines
    bool dashed;
};

/// Narrow, so that its texts can be read on a phone. From top to bottom: title, area, marks and label of the horizontal
/// axis, legend, footnote. Lengths are in units of its own, pixels when it is shown at full size; places are
/// counted from the top edge.
struct PlotLayout {
    explicit PlotLayout(const Plot& plot);

    static constexpr int width = 520;
    static constexpr int rightMargin = 36;  ///< half of the last mark's number stands in it
    static constexpr int areaHeight = 320;

    static constexpr int titleFont = 17;
    static constexpr int labelFont = 15;
    static constexpr int noteFont = 14;  ///< of legend and footnote
    static constexpr int noteLineHeight = 21;

    static constexpr int noteLeft = 12;
    static constexpr int legendSampleWidth = 36;
    static constexpr int legendTextLeft = 58;

    std::vector<std::string> title;
    std::vector<std::string> xLabel;
    std::vector<std::string> yLabel;
    std::vector<LegendEntry> legend;
    std::vector<std::string> footnote;

    std::vector<std::size_t> entryOfLine;  ///< for each line of the plot its place in the legend

    int areaTop;
    int legendTop;
    int footnoteTop;
    int height;
};

}  // namespace report
