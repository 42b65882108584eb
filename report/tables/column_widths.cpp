#include "report/tables/column_widths.h"

#include "text/unicode.h"
#include "text/wrapping.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <string>
#include <utility>

namespace report {

namespace {

/// All headers with the columns below them, the innermost first.
std::vector<HeaderSpan> headersOf(const TableGrid& grid)
{
    std::vector<HeaderSpan> headers;
    for (std::size_t column = 0; column < grid.columnHeaders.size(); ++column) {
        headers.push_back({grid.columnHeaders[column], column, 1});
    }
    for (std::size_t depth = grid.groupRows.size(); depth > 0; --depth) {
        const std::vector<HeaderSpan>& groupRow = grid.groupRows[depth - 1];
        headers.insert(headers.end(), groupRow.begin(), groupRow.end());
    }
    return headers;
}

/// The narrowest width in which a text takes no more than so many lines and no word of it is broken.
std::size_t narrowestWidth(const std::string& text, std::size_t lineCount)
{
    std::size_t least = text::widestWord(text);
    std::size_t most = text::textWidth(text);
    while (least < most) {
        const std::size_t middle = (least + most) / 2;
        if (text::wrapText(text, middle).size() > lineCount) {
            least = middle + 1;
        } else {
            most = middle;
        }
    }
    return most;
}

/// Widens the columns below a header, always the narrowest of them, until there is the room that it needs.
void makeRoom(ColumnWidths& widths, const HeaderSpan& header, std::size_t needed)
{
    const auto first = widths.begin() + static_cast<std::ptrdiff_t>(header.firstColumn);
    const auto end = first + static_cast<std::ptrdiff_t>(header.columnCount);
    while (spanWidth(widths, header) < needed) {
        ++*std::min_element(first, end);
    }
}

ColumnWidths bodyWidths(const TableGrid& grid)
{
    ColumnWidths widths(grid.columnHeaders.size(), 0);
    for (const auto& row : grid.body) {
        for (std::size_t column = 0; column < widths.size(); ++column) {
            widths[column] = std::max(widths[column], text::textWidth(row[column]));
        }
    }
    return widths;
}

/// The narrowest columns in which no header takes more than so many lines.
ColumnWidths columnsFor(const TableGrid& grid, std::size_t lineCount)
{
    ColumnWidths widths = bodyWidths(grid);
    for (const HeaderSpan& header : headersOf(grid)) {
        makeRoom(widths, header, narrowestWidth(header.label, lineCount));
    }
    return widths;
}

/// Gives the room that is left to headers, one after the other, that can then stay on one line.
void spendRoom(ColumnWidths& widths, const TableGrid& grid, std::size_t room)
{
    for (const HeaderSpan& header : headersOf(grid)) {
        ColumnWidths wider = widths;
        makeRoom(wider, header, text::textWidth(header.label));
        if (totalWidth(wider) <= room) {
            widths = std::move(wider);
        }
    }
}

}  // namespace

std::size_t spanWidth(const ColumnWidths& widths, const HeaderSpan& span)
{
    const auto first = widths.begin() + static_cast<std::ptrdiff_t>(span.firstColumn);
    return std::accumulate(first, first + static_cast<std::ptrdiff_t>(span.columnCount),
                           columnGap * (span.columnCount - 1));
}

std::size_t totalWidth(const ColumnWidths& widths)
{
    return std::accumulate(widths.begin(), widths.end(), columnGap * widths.size());
}

ColumnWidths narrowestColumns(const TableGrid& grid)
{
    return columnsFor(grid, std::numeric_limits<std::size_t>::max());
}

ColumnWidths fittingColumns(const TableGrid& grid, std::size_t room)
{
    ColumnWidths widths = narrowestColumns(grid);
    if (totalWidth(widths) > room) {
        return widths;
    }
    std::size_t lineCount = 0;
    do {
        widths = columnsFor(grid, ++lineCount);
    } while (totalWidth(widths) > room);
    spendRoom(widths, grid, room);
    return widths;
}

}  // namespace report
