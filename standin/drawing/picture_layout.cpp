#include "standin/drawing/picture_layout.h"

#include "standin/text.h"
#include "standin/text_wrapping.h"

#include <algorithm>

namespace standin {

namespace {

// Columns of text that fit into the picture.
constexpr std::size_t titleColumns = 54;
constexpr std::size_t xLabelColumns = 58;
constexpr std::size_t yLabelColumns = 40;
constexpr std::size_t legendColumns = 64;
constexpr std::size_t footnoteColumns = 72;

// Room between the parts.
constexpr int titleGap = 12;
constexpr int marksHeight = 40;
constexpr int legendGap = 24;
constexpr int footnoteGap = 10;

int heightOf(const std::vector<std::string>& lines)
{
    return static_cast<int>(lines.size()) * PictureLayout::lineHeight;
}

int heightOf(const std::vector<LegendEntry>& legend)
{
    int height = 0;
    for (const LegendEntry& entry : legend) {
        height += heightOf(entry.text);
    }
    return height;
}

}  // namespace

PictureLayout::PictureLayout(const Chart& chart)
    : title(wrapText(printable(chart.title), titleColumns))
    , xLabel(wrapText(printable(chart.xLabel), xLabelColumns))
    , yLabel(wrapText(printable(chart.yLabel), yLabelColumns))
    , footnote(wrapText(printable(chart.footnote), footnoteColumns))
{
    std::vector<std::string> legendTexts;
    for (const LineLayer& line : chart.lines) {
        const auto known = std::ranges::find(legendTexts, line.legend);
        entryOfLine.push_back(static_cast<std::size_t>(known - legendTexts.begin()));
        if (known == legendTexts.end()) {
            legendTexts.push_back(line.legend);
            legend.push_back(
                {wrapText(printable(line.legend), legendColumns), static_cast<int>(legend.size()), line.dashed});
        }
    }
    plotTop = titleGap + static_cast<int>(title.size()) * titleLineHeight + titleGap;
    legendTop = plotTop + plotHeight + marksHeight + heightOf(xLabel) + legendGap;
    footnoteTop = legendTop + heightOf(legend) + footnoteGap;
    height = footnoteTop + heightOf(footnote) + footnoteGap;
}

}  // namespace standin
