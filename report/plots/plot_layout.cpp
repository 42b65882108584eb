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

/// The room that a text may take, in the picture's units and in lines; what is longer is cut.
struct TextRoom {
    std::size_t columns;
    std::size_t lines;
};

// The title and the label below the plot stand in its middle, and may reach beyond it to the edge that is nearer.
constexpr TextRoom titleRoom = {columnsIn(420, PictureLayout::titleFont), 4};
constexpr TextRoom xLabelRoom = {columnsIn(380, PictureLayout::labelFont), 3};
constexpr TextRoom yLabelRoom = {columnsIn(PictureLayout::plotHeight, PictureLayout::labelFont), 2};
constexpr TextRoom legendRoom = {
    columnsIn(PictureLayout::width - PictureLayout::legendTextLeft - 30, PictureLayout::noteFont), 3};
constexpr TextRoom footnoteRoom = {
    columnsIn(PictureLayout::width - PictureLayout::noteLeft - 40, PictureLayout::noteFont), 6};

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
        height += heightOf(entry.text, PictureLayout::noteLineHeight);
    }
    return height;
}

}  // namespace

PictureLayout::PictureLayout(const Chart& chart)
    : title(wrapLabel(chart.title, titleRoom))
    , xLabel(wrapLabel(chart.xLabel, xLabelRoom))
    , yLabel(wrapLabel(chart.yLabel, yLabelRoom))
    , footnote(wrapLabel(chart.footnote, footnoteRoom))
{
    std::vector<std::string> legendTexts;
    for (const LineLayer& line : chart.lines) {
        const auto known = std::ranges::find(legendTexts, line.legend);
        entryOfLine.push_back(static_cast<std::size_t>(known - legendTexts.begin()));
        if (known == legendTexts.end()) {
            legendTexts.push_back(line.legend);
            legend.push_back({wrapLabel(line.legend, legendRoom), line.category, line.dashed});
        }
    }
    plotTop = titleGap + heightOf(title, titleLineHeight) + titleGap;
    legendTop = plotTop + plotHeight + marksHeight + heightOf(xLabel, labelLineHeight) + legendGap;
    footnoteTop = legendTop + heightOf(legend) + footnoteGap;
    height = footnoteTop + heightOf(footnote, noteLineHeight) + footnoteGap;
}

}  // namespace report
