// Data to measure and compare with: the same for the same size, on every system.
#pragma once

#include "module/column.h"

#include <cstddef>
#include <string>
#include <vector>

namespace reference {

/// Readings of 450 with a standard deviation of 50, to one decimal; so many percent of each column are missing.
std::vector<bldatman::Column> makeColumns(std::size_t columns, std::size_t cases, double percentMissing);

/// Columns as a CSV file with the names v0, v1, ...
std::string csvOf(const std::vector<bldatman::Column>& columns);

}  // namespace reference
