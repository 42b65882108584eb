// The computations told once more in the plainest way, for the results of the timed ones to be compared with.
#pragma once

#include "module/analysis/pair_result.h"
#include "module/column.h"
#include "module/settings/setting_records.h"

#include <vector>

namespace tests {

/// The nearest integer. (For comparing: one C library's own round is off just below a half.)
double roundedHalfAwayFromZero(double value);

/// The statistics of a pair, without its names.
bldatman::BldatmanPairResult plainStatistics(const bldatman::Column& a, const bldatman::Column& b,
                                             const bldatman::BldatmanCriteriaSetting& criteria);

/// Its statistics: all but the vectors and names.
std::vector<double> scalarsOf(const bldatman::BldatmanPairResult& record);

/// True when every number of both is the same to the last bit; one that is no number is the same as any other.
bool areTheSame(const bldatman::BldatmanPairResult& one, const bldatman::BldatmanPairResult& other);

/// The columns without the cases that are missing in any of them.
std::vector<bldatman::Column> withoutMissingCases(const std::vector<bldatman::Column>& columns);

}  // namespace tests
