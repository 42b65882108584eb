// The computations of the analysis once more in the plainest way, to compare with.
#pragma once

#include "module/analysis/pair_result.h"
#include "module/column.h"
#include "module/settings/setting_records.h"

#include <string>
#include <vector>

namespace reference {

/// The nearest integer, halves away from zero. (One C library's own round is off just below a half.)
double roundedHalfAwayFromZero(double value);

/// The record of a pair, without the names.
/// @throws what the quantiles throw: for fewer than two cases, and for levels that have none
bldatman::BldatmanPairResult plainRecord(const bldatman::Column& a, const bldatman::Column& b,
                                         const bldatman::BldatmanCriteriaSetting& criteria);

/// Where two records first differ by a bit, names apart, for instance "means[3]: 1 and 2"; empty when
/// nowhere. Any NaN is as good as any other.
std::string firstDifference(const bldatman::BldatmanPairResult& one, const bldatman::BldatmanPairResult& other);

/// The columns without the cases that are missing in any of them.
std::vector<bldatman::Column> withoutMissingCases(const std::vector<bldatman::Column>& columns);

}  // namespace reference
