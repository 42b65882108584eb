// A table drawn with characters.
#pragma once

#include "report/tables/table_grid.h"

#include <cstddef>
#include <string>
#include <vector>

namespace report {

/// The lines of a table that is made to fit `width`, at least 20: group labels above rules that show which columns they
/// stand for, the column headers, the rows. Of cells side by side, the last lines stand on one line. Where the columns
/// do not fit side by side, some of them follow below an empty line.
std::vector<std::string> drawTable(const TableGrid& grid, std::size_t width);

}  // namespace report
