#include "report/tables/text_table.h"

#include "report/tables/table_fitting.h"
#include "report/tables/text_alignment.h"
#include "text/unicode.h"
#include "text/wrapping.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace report {

namespace {

using Lines = std::vector<std::string>;

struct TextCell {
    Lines lines;
    std::size_t width;
    std::string (*align)(std::string_view text, std::size_t width);
};

using TextRow = std::vector<TextCell>;

const std::string gap(columnGap, ' ');

TextCell emptyCell(std::size_t width)
{
    return {{}, width, alignedLeft};
}

/// The header of a row. Where it takes several lines, the later ones are indented: the next row begins right below.
TextCell stubCell(const std::string& text, std::size_t width)
{
    const bool fits = text::textWidth(text) <= width;
    return {fits ? Lines{text} : hangingLines("", gap, text, width), width, alignedLeft};
}

TextCell columnCell(const std::string& text, std::size_t width)
{
    return {text::wrapText(text, width), width, alignedRight};
}

TextCell groupCell(const std::string& label, std::size_t width)
{
    Lines lines = text::wrapText(label, width);
    lines.emplace_back(width, '-');
    return {std::move(lines), width, centred};
}

TextRow groupRow(const std::vector<HeaderSpan>& groups, const FittedTable& table)
{
    TextRow row = {emptyCell(table.stubWidth)};
    std::size_t column = 0;
    for (const HeaderSpan& group : groups) {
        for (; column < group.firstColumn; ++column) {
            row.push_back(emptyCell(table.columnWidths[column]));
        }
        row.push_back(groupCell(group.label, spanWidth(table.columnWidths, group)));
        column += group.columnCount;
    }
    return row;
}

TextRow plainRow(const std::string& header, const std::vector<std::string>& texts, const FittedTable& table)
{
    TextRow row = {stubCell(header, table.stubWidth)};
    for (std::size_t column = 0; column < texts.size(); ++column) {
        row.push_back(columnCell(texts[column], table.columnWidths[column]));
    }
    return row;
}

std::vector<TextRow> rowsOf(const FittedTable& table)
{
    const TableGrid& grid = table.grid;
    std::vector<TextRow> rows;
    for (const auto& groups : grid.groupRows) {
        rows.push_back(groupRow(groups, table));
    }
    rows.push_back(plainRow(grid.rowsLabel, grid.columnHeaders, table));
    for (std::size_t row = 0; row < grid.body.size(); ++row) {
        rows.push_back(plainRow(grid.rowHeaders[row], grid.body[row], table));
    }
    return rows;
}

/// The line that has so many others of the row below it.
std::string lineOf(const TextRow& row, std::size_t linesBelow)
{
    std::string line;
    for (const TextCell& cell : row) {
        const bool reached = linesBelow < cell.lines.size();
        line += cell.align(reached ? cell.lines[cell.lines.size() - 1 - linesBelow] : "", cell.width) + gap;
    }
    return line.substr(0, line.find_last_not_of(' ') + 1);
}

std::size_t heightOf(const TextRow& row)
{
    std::size_t height = 0;
    for (const TextCell& cell : row) {
        height = std::max(height, cell.lines.size());
    }
    return height;
}

}  // namespace

std::vector<std::string> drawTable(const TableGrid& grid, std::size_t width)
{
    Lines lines;
    for (const FittedTable& piece : fitTable(grid, width)) {
        if (!lines.empty()) {
            lines.emplace_back();
        }
        for (const TextRow& row : rowsOf(piece)) {
            for (std::size_t toGo = heightOf(row); toGo > 0; --toGo) {
                lines.push_back(lineOf(row, toGo - 1));
            }
        }
    }
    return lines;
}

}  // namespace report
