#include "report/drawing/gnuplot_script.h"

#include "report/drawing/gnuplot_marks.h"
#include "report/drawing/gnuplot_text.h"
#include "report/plots/plot_area.h"
#include "report/plots/plot_error.h"
#include "report/plots/plot_layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <string_view>
#include <utility>
#include <vector>

namespace report {

namespace {

/// One for each category variable. Mid-tones: each stands out from a white ground and from a black one.
constexpr std::array<std::string_view, 6> lineColours = {"#808080", "#d1495b", "#2e8b57",
                                                         "#b8751a", "#8e63ce", "#1b8a9e"};
constexpr std::string_view pointColour = "#4588c9";

std::string rangeText(const AxisRange& axis)
{
    return "[" + gnuplotNumber(axis.low) + ":" + gnuplotNumber(axis.high) + "]";
}

std::string fontText(int size)
{
    return " font '," + std::to_string(size) + "'";
}

/// The share of the plot's width that gnuplot calls a place so far from the left edge.
std::string across(int place)
{
    return gnuplotNumber(static_cast<double>(place) / PlotLayout::width);
}

/// How marks are written: so that neighbours differ wherever an axis is drawn.
constexpr const char* markFormat = "%.12g";

/// How many numbers of the size of the axis's ends stand side by side below it.
int mostMarks(const AxisRange& axis)
{
    constexpr int axisLength = PlotLayout::width - 130;
    constexpr int characterWidth = PlotLayout::labelFont * 3 / 5;
    const double distance = markDistance(axis, 6);
    std::size_t longest = 0;
    for (const double end : {axis.low, axis.high}) {
        std::array<char, 40> mark{};
        const int length = std::snprintf(mark.data(), mark.size(), markFormat, std::round(end / distance) * distance);
        longest = std::max(longest, static_cast<std::size_t>(length));
    }
    return std::clamp(axisLength / (static_cast<int>(longest + 1) * characterWidth), 3, 8);
}

/// The commands of one plot, part by part.
class ScriptWriter {
public:
    explicit ScriptWriter(const Plot& plot)
        : plot_(plot)
        , layout_(plot)
        , area_(plot, PlotLayout::width, PlotLayout::areaHeight)
    {
    }

    std::string write()
    {
        writeFrame();
        writeAxes();
        writeLegend();
        writeNote(layout_.footnote, PlotLayout::noteLeft, layout_.footnoteTop);
        writeLayers();
        return std::move(script_);
    }

private:
    void command(const std::string& line) { script_ += line + "\n"; }

    /// The share of the plot's height that gnuplot calls a place so far from the top edge.
    std::string down(int place) const { return gnuplotNumber(1.0 - static_cast<double>(place) / layout_.height); }

    void writeFrame()
    {
        command("reset");
        command("set encoding utf8");
        command("set terminal svg size " + std::to_string(PlotLayout::width) + "," + std::to_string(layout_.height) +
                " dynamic noenhanced font 'sans-serif," + std::to_string(PlotLayout::labelFont) + "'");
        command("set title " + gnuplotText(layout_.title) + fontText(PlotLayout::titleFont) + " offset 0,-0.6");
        command("set tmargin at screen " + down(layout_.areaTop));
        command("set bmargin at screen " + down(layout_.areaTop + PlotLayout::areaHeight));
        command("set rmargin at screen " + across(PlotLayout::width - PlotLayout::rightMargin));
        command("unset key");
    }

    void writeAxes()
    {
        command("set xlabel " + gnuplotText(layout_.xLabel));
        command("set ylabel " + gnuplotText(layout_.yLabel) + " offset screen " + across(-labelShift()) + ",0");
        command("set xrange " + rangeText(area_.xRange()));
        command("set yrange " + rangeText(area_.yRange()));
        command("set border 3 lc rgb '#808080'");
        command("set tics nomirror out scale 0.5 format '" + std::string(markFormat) + "' textcolor " +
                std::string(inkColour));
        command("set xtics " + gnuplotNumber(markDistance(area_.xRange(), mostMarks(area_.xRange()))));
    }

    /// Gnuplot makes room for every line of the label but puts the middle one where a single one would stand, over the
    /// numbers beside the axis. Its lines are half as high again as the font.
    int labelShift() const { return static_cast<int>(layout_.yLabel.size() - 1) * PlotLayout::labelFont * 3 / 4; }

    static std::string lineStyle(const LegendEntry& entry)
    {
        return "lw 2 lc rgb '" + std::string(lineColours[entry.category % lineColours.size()]) +
               (entry.dashed ? "' dt (7,5)" : "' dt solid");
    }

    void writeLegend()
    {
        int top = layout_.legendTop;
        for (const LegendEntry& entry : layout_.legend) {
            const std::string middle = down(top + PlotLayout::noteLineHeight / 2);
            command("set arrow from screen " + across(PlotLayout::noteLeft) + "," + middle + " to screen " +
                    across(PlotLayout::noteLeft + PlotLayout::legendSampleWidth) + "," + middle + " nohead " +
                    lineStyle(entry));
            top = writeNote(entry.text, PlotLayout::legendTextLeft, top);
        }
    }

    /// Returns where the next line below it would begin.
    int writeNote(const std::vector<std::string>& lines, int left, int top)
    {
        for (const std::string& line : lines) {
            command("set label " + gnuplotText(line) + " at screen " + across(left) + "," +
                    down(top + PlotLayout::noteLineHeight / 2) + " left" + fontText(PlotLayout::noteFont));
            top += PlotLayout::noteLineHeight;
        }
        return top;
    }

    void writeLayers()
    {
        if (isDodged()) {
            // Neighbours stand side by side, at most so far to one side.
            command("set jitter overlap 0.3 spread 1.8 wrap 8");
        }
        for (const PointLayer& layer : plot_.points) {
            addLayer(withSentinel(area_.pointsOf(layer)), "points " + std::string(pointMark) +
                                                              (layer.dodged ? " ps 0.7" : " ps 0.5") + " lc rgb '" +
                                                              std::string(pointColour) + "'");
        }
        for (std::size_t i = 0; i < plot_.lines.size(); ++i) {
            addLayer(area_.pointsOf(plot_.lines[i]), "lines " + lineStyle(layout_.legend[layout_.entryOfLine[i]]));
        }
        command("plot " + (layers_.empty() ? "NaN" : layers_));
        for (std::size_t i = 0; i < layerCount_; ++i) {
            command("undefine " + blockName(i));
        }
    }

    /// Gnuplot moves all points of a plot apart, or none.
    bool isDodged() const
    {
        const auto dodged = std::ranges::count(plot_.points, true, &PointLayer::dodged);
        if (dodged > 0 && static_cast<std::size_t>(dodged) < plot_.points.size()) {
            throw PlotError("points that are moved apart and points that are not cannot be drawn together");
        }
        return dodged > 0;
    }

    /// Gnuplot looks for neighbours one point too far when it moves points apart. This one, last by its place and out
    /// of sight, is what it finds there.
    std::vector<PlotPoint> withSentinel(std::vector<PlotPoint> points) const
    {
        const AxisRange& x = area_.xRange();
        const AxisRange& y = area_.yRange();
        if (!points.empty()) {
            points.push_back({x.high + (x.high - x.low), y.high + (y.high - y.low)});
        }
        return points;
    }

    static std::string blockName(std::size_t layer) { return "$layer" + std::to_string(layer); }

    /// A layer without points is left out: gnuplot would stumble over it.
    void addLayer(const std::vector<PlotPoint>& points, const std::string& style)
    {
        if (points.empty()) {
            return;
        }
        const std::string block = blockName(layerCount_++);
        command(block + " << END");
        for (const PlotPoint& point : points) {
            command(gnuplotNumber(point.x) + " " + gnuplotNumber(point.y));
        }
        command("END");
        layers_ += (layers_.empty() ? "" : ", ") + block + " with " + style;
    }

    const Plot& plot_;
    const PlotLayout layout_;
    const PlotArea area_;
    std::string script_;
    std::string layers_;  ///< of the plot command
    std::size_t layerCount_ = 0;
};

}  // namespace

std::string gnuplotScript(const Plot& plot)
{
    return ScriptWriter(plot).write();
}

}  // namespace report
