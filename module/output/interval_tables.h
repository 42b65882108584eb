// The two tables of interval estimates: of the bias, and of the limits of agreement. Each has a row on the scale of the
// differences and one relative to the mean of the two measurements.
#pragma once

#include "module/output/table_inputs.h"

namespace bldatman {

/// Adds the table of the bias to the document if PRINT asks for it.
void addMeanDifferenceTable(const TableInputs& inputs);

/// Adds the table of the limits of agreement to the document if PRINT asks for it.
void addAgreementLimitTable(const TableInputs& inputs);

}  // namespace bldatman
