// The plots of every pair: one of the differences and, when asked for, one of the ratios.
#pragma once

#include "host/output.h"
#include "module/analysis/pair_result.h"
#include "module/settings/input_setting.h"
#include "module/texts/text_catalogue.h"

#include <vector>

namespace bldatman {

/// Adds the plots of all pairs to the document, pair by pair.
///
/// Every line that a plot could show is handed over as a column of two equal values over the two ends of "xMinMax"; the
/// chart's statements choose which of them are drawn.
void addPlots(StatJSONGenerator& document, const std::vector<BldatmanPairResult>& results,
              const BldatmanInputSetting& settings, const BldatmanTextCatalogue& catalogue);

}  // namespace bldatman
