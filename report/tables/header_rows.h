// The column headers of a table as rows of cells that span rows and columns, as forms with real tables need them.
#pragma once

#include "report/tables/table_grid.h"

#include <cstddef>
#include <string>
#include <vector>

namespace report {

struct HeaderCell {
    enum class Kind { Corner, Group, Column };

    Kind kind;
    std::string text;
    std::size_t columnCount = 1;
    std::size_t rowCount = 1;
};

/// From top to bottom; the first row begins with the corner above the row headers. A group stands over its columns; a
/// column reaches from the last group above it down to the body. Where a group begins lower than its neighbours, an
/// empty corner cell fills the place above it.
std::vector<std::vector<HeaderCell>> headerRowsOf(const TableGrid& grid);

}  // namespace report
