// Fits a table into the width of a page.
#pragma once

#include "report/tables/column_widths.h"
#include "report/tables/table_grid.h"

#include <cstddef>
#include <vector>

namespace report {

/// A table, or some neighbouring columns of it, with the widths to draw it in. Texts that are wider are to be wrapped.
struct FittedTable {
    TableGrid grid;
    std::size_t stubWidth;  ///< of the row headers
    ColumnWidths columnWidths;
};

/// The table in as many pieces as `width` asks for, one if it fits. Of these, only what is needed is done, in turn:
///  1. headers are wrapped, between words;
///  2. row headers are wrapped, to half of the width;
///  3. the columns are cut into pieces, all with the row headers, and by choice not within a group;
///  4. a column that is too wide even by itself gets the room that there is.
///
/// @param width  at least 20
std::vector<FittedTable> fitTable(const TableGrid& grid, std::size_t width);

}  // namespace report
