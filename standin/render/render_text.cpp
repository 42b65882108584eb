#include "standin/render/render_text.h"

#include "standin/render/footnote_marks.h"
#include "standin/render/table_grid.h"
#include "standin/render/text_alignment.h"
#include "standin/unicode.h"

#include <algorithm>
#include <numeric>

namespace standin {

namespace {

const std::string gap = "  ";

std::string underlined(const std::string& title, char line)
{
    return title + "\n" + std::string(textWidth(title), line) + "\n";
}

std::size_t widest(const std::vector<std::string>& texts)
{
    const auto wider = [](std::size_t width, const std::string& text) { return std::max(width, textWidth(text)); };
    return std::accumulate(texts.begin(), texts.end(), std::size_t{0}, wider);
}

std::size_t spanWidth(const std::vector<std::size_t>& widths, const HeaderSpan& span)
{
    const auto first = widths.begin() + static_cast<std::ptrdiff_t>(span.firstColumn);
    return std::accumulate(first, first + static_cast<std::ptrdiff_t>(span.columnCount), std::size_t{0}) +
           gap.size() * (span.columnCount - 1);
}

/// Columns as wide as their widest text, the last column of a group wider where its label needs it.
std::vector<std::size_t> columnWidths(const TableGrid& grid)
{
    std::vector<std::size_t> widths;
    for (std::size_t column = 0; column < grid.columnHeaders.size(); ++column) {
        std::size_t width = textWidth(grid.columnHeaders[column]);
        for (const auto& row : grid.body) {
            width = std::max(width, textWidth(row[column]));
        }
        widths.push_back(width);
    }
    for (const auto& groupRow : grid.groupRows) {
        for (const HeaderSpan& span : groupRow) {
            const std::size_t needed = textWidth(span.label);
            const std::size_t there = spanWidth(widths, span);
            if (needed > there) {
                widths[span.firstColumn + span.columnCount - 1] += needed - there;
            }
        }
    }
    return widths;
}

std::string withoutTrailingBlanks(const std::string& line)
{
    return line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
}

/// A row of group labels, each centred over its columns.
std::string groupLine(const std::vector<HeaderSpan>& spans, const std::vector<std::size_t>& widths,
                      std::size_t stubWidth)
{
    std::string line(stubWidth, ' ');
    std::size_t column = 0;
    for (const HeaderSpan& span : spans) {
        for (; column < span.firstColumn; ++column) {
            line += gap + std::string(widths[column], ' ');
        }
        line += gap + centred(span.label, spanWidth(widths, span));
        column += span.columnCount;
    }
    return withoutTrailingBlanks(line);
}

std::string gridLine(const std::string& stub, std::size_t stubWidth, const std::vector<std::string>& texts,
                     const std::vector<std::size_t>& widths)
{
    std::string line = alignedLeft(stub, stubWidth);
    for (std::size_t column = 0; column < texts.size(); ++column) {
        line += gap + alignedRight(texts[column], widths[column]);
    }
    return withoutTrailingBlanks(line);
}

std::string renderGrid(const TableGrid& grid)
{
    const std::vector<std::size_t> widths = columnWidths(grid);
    const std::size_t stubWidth = std::max(widest(grid.rowHeaders), textWidth(grid.rowsLabel));
    std::string text;
    for (const auto& groupRow : grid.groupRows) {
        text += groupLine(groupRow, widths, stubWidth);
    }
    text += gridLine(grid.rowsLabel, stubWidth, grid.columnHeaders, widths);
    for (std::size_t row = 0; row < grid.body.size(); ++row) {
        text += gridLine(grid.rowHeaders[row], stubWidth, grid.body[row], widths);
    }
    return text;
}

std::string renderTable(const rapidjson::Value& table)
{
    std::string text = table["hideTitle"].GetBool() ? "" : underlined(table["title"].GetString(), '-');
    text += renderGrid(layOut(table));
    const auto footnotes = table["footnotes"].GetArray();
    for (rapidjson::SizeType i = 0; i < footnotes.Size(); ++i) {
        text += footnoteMark(i) + ". " + footnotes[i].GetString() + "\n";
    }
    return text;
}

std::string renderGraph(const rapidjson::Value& graph)
{
    const rapidjson::SizeType pointCount = graph["data"]["xdata"].Size();
    return std::string("[plot] ") + graph["name"].GetString() + ", " + std::to_string(pointCount) + " points\n";
}

std::string renderDocument(const rapidjson::Document& document)
{
    std::string text = underlined(document["title"].GetString(), '=');
    for (const rapidjson::Value& object : document["objects"].GetArray()) {
        text += "\n" + (object["type"] == "table" ? renderTable(object) : renderGraph(object));
    }
    return text;
}

}  // namespace

std::string renderText(const std::list<rapidjson::Document>& documents)
{
    std::string text;
    for (const rapidjson::Document& document : documents) {
        text += (text.empty() ? "" : "\n\n") + renderDocument(document);
    }
    return text;
}

}  // namespace standin
