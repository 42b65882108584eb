// The details table: one row per case, with the two measurements, their mean, difference and ratio.
#pragma once

#include "module/output/table_inputs.h"

namespace bldatman {

/// Adds the table to the document if PRINT asks for it.
void addDetailsTable(const TableInputs& inputs);

}  // namespace bldatman
