// The computations told once more in the plainest way, for the results of the timed ones to be compared with.
#pragma once

#include "module/analysis/pair_result.h"
#include "module/column.h"

#include <vector>

namespace bench {

/// The statistics of a pair with the default settings.
bldatman::BldatmanPairResult plainStatistics(const bldatman::Column& a, const bldatman::Column& b, bool logTransform);

/// True when every number of both is the same to the last bit.
bool areTheSame(const bldatman::BldatmanPairResult& one, const bldatman::BldatmanPairResult& other);

/// The columns without the cases that are missing in any of them.
std::vector<bldatman::Column> withoutMissingCases(const std::vector<bldatman::Column>& columns);

}  // namespace bench
