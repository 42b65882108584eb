#include "report/tables/header_rows.h"

#include <algorithm>

namespace report {

namespace {

using Kind = HeaderCell::Kind;

/// The group that stands over a column in a row of groups; null where there is none.
const HeaderSpan* spanOver(const std::vector<HeaderSpan>& row, std::size_t column)
{
    const auto found = std::ranges::find_if(row, [column](const HeaderSpan& span) { return span.covers(column); });
    return found == row.end() ? nullptr : &*found;
}

/// The row in which the header of a column itself begins: below the last group over it.
std::size_t ownRow(const TableGrid& grid, std::size_t column)
{
    for (std::size_t row = grid.groupRows.size(); row > 0; --row) {
        if (spanOver(grid.groupRows[row - 1], column) != nullptr) {
            return row;
        }
    }
    return 0;
}

std::vector<HeaderCell> headerRow(const TableGrid& grid, std::size_t row)
{
    const std::size_t rowCount = grid.groupRows.size() + 1;
    std::vector<HeaderCell> cells;
    for (std::size_t column = 0; column < grid.columnHeaders.size(); ++column) {
        const std::size_t own = ownRow(grid, column);
        const HeaderSpan* group = row < own ? spanOver(grid.groupRows[row], column) : nullptr;
        if (group != nullptr && group->firstColumn == column) {
            cells.push_back({Kind::Group, group->label, group->columnCount});
        } else if (group == nullptr && row < own) {
            cells.push_back({Kind::Corner, ""});
        } else if (row == own) {
            cells.push_back({Kind::Column, grid.columnHeaders[column], 1, rowCount - own});
        }
    }
    return cells;
}

}  // namespace

std::vector<std::vector<HeaderCell>> headerRowsOf(const TableGrid& grid)
{
    std::vector<std::vector<HeaderCell>> rows;
    for (std::size_t row = 0; row <= grid.groupRows.size(); ++row) {
        rows.push_back(headerRow(grid, row));
    }
    rows.front().insert(rows.front().begin(), {Kind::Corner, grid.rowsLabel, 1, rows.size()});
    return rows;
}

}  // namespace report
