#include "report/plots/plot_layout.h"

#include "text/wording.h"
#include "text/wrapping.h"

#include <algorithm>

namespace report {

namespace {

/// How many columns of text fit side by side: a column is about half as wide as the font is high.
constexpr std::size_t columnsIn(int room, int font)
{
    return static_cast<std::size_t>(2 * room / font);
}

/// The room that a text may take, in units of the plot and in lines; what is longer is cut.
struct TextRoom {
    std::size_t columns;
    std::size_t lines;
};

// The title and the label below the area stand in its middle, and may reach beyond it to the edge that is nearer.
constexpr TextRoom titleRoom = {columnsIn(420, PlotLayout::titleFont), 4};
constexpr TextRoom xLabelRoom = {columnsIn(380, PlotLayout::labelFont), 3};
constexpr TextRoom yLabelRoom = {columnsIn(PlotLayout::areaHeight, PlotLayout::labelFont), 2};
constexpr TextRoom legendRoom = {columnsIn(PlotLayout::width - PlotLayout::legendTextLeft - 30, PlotLayout::noteFont),
                                 3};
constexpr TextRoom footnoteRoom = {columnsIn(PlotLayout::width - PlotLayout::noteLeft - 40, PlotLayout::noteFont), 6};

// Room between the parts.
constexpr int titleGap = 12;
constexpr int titleLineHeight = 26;
constexpr int labelLineHeight = 21;
constexpr int marksHeight = 40;
constexpr int legendGap = 24;
constexpr int footnoteGap = 10;

std::vector<std::string> wrapLabel(const std::string& text, const TextRoom& room)
{
    std::vector<std::string> lines = text::wrapText(text::printable(text), room.columns);
    if (lines.size() > room.lines) {
        lines.resize(room.lines);
        lines.back() += "…";
    }
    return lines;
}

int heightOf(const std::vector<std::string>& lines, int lineHeight)
{
    return static_cast<int>(lines.size()) * lineHeight;
}

int heightOf(const std::vector<LegendEntry>& legend)
{
    int height = 0;
    for (const LegendEntry& entry : legend) {
        height += heightOf(entry.text, PlotLayout::noteLineHeight);
    }
    return height;
}

}  // namespace

PlotLayout::PlotLayout(const Plot& plot)
    : title(wrapLabel(plot.title, titleRoom))
    , xLabel(wrapLabel(plot.xLabel, xLabelRoom))
    , yLabel(wrapLabel(plot.yLabel, yLabelRoom))
    , footnote(wrapLabel(plot.footnote, footnoteRoom))
{
    std::vector<std::string> legendTexts;
    for (const LineLayer& line : plot.lines) {
        const auto known = std::ranges::find(legendTexts, line.legend);
        entryOfLine.push_back(static_cast<std::size_t>(known - legendTexts.begin()));
        if (known == legendTexts.end()) {
            legendTexts.push_back(line.legend);
            legend.push_back({wrapLabel(line.legend, legendRoom), line.category, line.dashed});
        }
    }
    areaTop = titleGap + heightOf(title, titleLineHeight) + titleGap;
    legendTop = areaTop + areaHeight + marksHeight + heightOf(xLabel, labelLineHeight) + legendGap;
    footnoteTop = legendTop + heightOf(legend) + footnoteGap;
    height = footnoteTop + heightOf(footnote, noteLineHeight) + footnoteGap;
}

}  // namespace report
