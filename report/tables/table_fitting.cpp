#include "report/tables/table_fitting.h"

#include "report/tables/text_alignment.h"
#include "text/unicode.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace report {

namespace {

/// The parts of the groups of a row that stand over so many columns from `first` on.
std::vector<HeaderSpan> spansOver(const std::vector<HeaderSpan>& groupRow, std::size_t first, std::size_t count)
{
    std::vector<HeaderSpan> spans;
    for (const HeaderSpan& span : groupRow) {
        const std::size_t begin = std::max(span.firstColumn, first);
        const std::size_t end = std::min(span.endColumn(), first + count);
        if (begin < end) {
            spans.push_back({span.label, begin - first, end - begin});
        }
    }
    return spans;
}

/// So many columns from `first` on, as a table of their own.
TableGrid columnsOf(const TableGrid& grid, std::size_t first, std::size_t count)
{
    const auto cut = [&](const std::vector<std::string>& texts) {
        const auto begin = texts.begin() + static_cast<std::ptrdiff_t>(first);
        return std::vector<std::string>(begin, begin + static_cast<std::ptrdiff_t>(count));
    };
    TableGrid part = {{}, cut(grid.columnHeaders), grid.rowsLabel, grid.rowHeaders, {}};
    for (const auto& groupRow : grid.groupRows) {
        part.groupRows.push_back(spansOver(groupRow, first, count));
    }
    std::erase_if(part.groupRows, [](const auto& groupRow) { return groupRow.empty(); });
    std::ranges::transform(grid.body, std::back_inserter(part.body), cut);
    return part;
}

/// How many groups a cut before this column would go through.
std::ptrdiff_t cutGroups(const TableGrid& grid, std::size_t column)
{
    const auto isCut = [column](const HeaderSpan& span) { return span.firstColumn < column && span.covers(column); };
    std::ptrdiff_t count = 0;
    for (const auto& groupRow : grid.groupRows) {
        count += std::ranges::count_if(groupRow, isCut);
    }
    return count;
}

/// How many of the columns from `first` on go into one piece.
std::size_t pieceSize(const TableGrid& grid, std::size_t first, std::size_t room)
{
    std::size_t most = 1;
    while (first + most < grid.columnHeaders.size() &&
           totalWidth(narrowestColumns(columnsOf(grid, first, most + 1))) <= room) {
        ++most;
    }
    std::size_t best = most;
    for (std::size_t count = most; count > 0; --count) {
        if (cutGroups(grid, first + count) < cutGroups(grid, first + best)) {
            best = count;
        }
    }
    return best;
}

std::vector<FittedTable> cutIntoPieces(const TableGrid& grid, std::size_t stubWidth, std::size_t room)
{
    std::vector<FittedTable> pieces;
    for (std::size_t first = 0; first < grid.columnHeaders.size();) {
        const std::size_t count = pieceSize(grid, first, room);
        TableGrid part = columnsOf(grid, first, count);
        ColumnWidths widths = fittingColumns(part, room);
        for (std::size_t& width : widths) {
            width = std::min(width, room - columnGap);
        }
        pieces.push_back({std::move(part), stubWidth, std::move(widths)});
        first += count;
    }
    return pieces;
}

}  // namespace

std::vector<FittedTable> fitTable(const TableGrid& grid, std::size_t width)
{
    const std::size_t wholeStub = std::max(widest(grid.rowHeaders), text::textWidth(grid.rowsLabel));
    const std::size_t wrappedStub = std::min(wholeStub, width / 2);
    for (const std::size_t stubWidth : {wholeStub, wrappedStub}) {
        ColumnWidths widths = fittingColumns(grid, width - std::min(stubWidth, width));
        if (stubWidth + totalWidth(widths) <= width) {
            return {{grid, stubWidth, std::move(widths)}};
        }
    }
    return cutIntoPieces(grid, wrappedStub, width - wrappedStub);
}

}  // namespace report
