// Listwise deletion: a case that is missing anywhere is removed everywhere.
#pragma once

#include "module/column.h"

#include <vector>

namespace bldatman {

/// Looks at the column pairs (first[k], second[k]) for every k of the first list, each from its last case to its first.
/// A case at which either column holds the system-missing value or a NaN is removed from the columns of both lists
/// that stand in a pair of long enough columns. Columns of the second list beyond the first list's count are neither
/// looked at nor changed.
///
/// @throws std::runtime_error  "Inner vectors must have the same size" when the columns of a pair differ in length, or
///         when the second list has no column for it
void removeMissingCases(std::vector<Column>& first, std::vector<Column>& second);

}  // namespace bldatman
