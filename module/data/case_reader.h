// Turns a list of variables into columns of case values.
#pragma once

#include "host/procedure.h"
#include "module/column.h"

#include <vector>

namespace bldatman {

/// Reads the active data set once, from beginning to end, and appends the j-th value of every case to column j, missing
/// values as the host delivers them. `columns` grows to the longest record seen: a data set without cases gives no
/// columns, not even empty ones.
///
/// Raises nothing. An error is reported as one line on the standard error stream, without a name in front of it
/// (intended), and the columns keep what had been read before it: the command goes on with those cases.
void readCaseColumns(const std::vector<int>& indices, ProcedureDataSource& source, std::vector<Column>& columns);

}  // namespace bldatman
