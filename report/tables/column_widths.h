// How wide the columns of a table are drawn.
#pragma once

#include "report/tables/table_grid.h"

#include <cstddef>
#include <vector>

namespace report {

using ColumnWidths = std::vector<std::size_t>;

/// The blanks before a column.
constexpr std::size_t columnGap = 2;

/// The columns below a header, with the gaps between them.
std::size_t spanWidth(const ColumnWidths& widths, const HeaderSpan& span);

/// All columns, with the gaps before them.
std::size_t totalWidth(const ColumnWidths& widths);

/// The narrowest columns that hold every text of the body on one line and every word of the headers unbroken.
ColumnWidths narrowestColumns(const TableGrid& grid);

/// The columns that fit in `room` with headers of as few lines as can be: the highest header takes the fewest, and
/// where there is room left, headers from left to right stay on one line. The narrowest columns where even they do not
/// fit.
ColumnWidths fittingColumns(const TableGrid& grid, std::size_t room);

}  // namespace report
