// The analysis of one command: every pair of measurement variables, in order.
#pragma once

#include "module/analysis/detail_sorting.h"
#include "module/analysis/pair_result.h"
#include "module/analysis/pair_statistics.h"
#include "module/column.h"
#include "module/settings/setting_records.h"

#include <string>
#include <vector>

namespace bldatman {

class BldatmanInputSetting;

/// The computations that need nothing of the object are its operations too, inherited from where they are promised.
class BldatmanAnalysis : public BldatmanPairStatistics, public BldatmanDetailSorting {
public:
    /// Keeps both references. The settings are only read; records are appended to `results`.
    BldatmanAnalysis(const BldatmanInputSetting& settings, std::vector<BldatmanPairResult>& results);

    /// Forms the pairs, computes each and sorts its detail rows as asked. Returns 0.
    ///
    /// With scope "LISTWISE" the cases that are missing anywhere are removed first; see `removeMissingCases`. Paired:
    /// the k-th variable of the first list with the k-th of the second, up to the shorter list, with a warning on the
    /// standard error stream when the lists differ in length. Otherwise: every variable of the first list with every
    /// one of the second, in this order. Two variables of one name are skipped in silence. Every pair works on copies,
    /// so that what one drops or transforms never reaches another.
    ///
    /// @throws std::runtime_error "Inner vectors must have the same size", from the listwise removal
    /// @throws std::out_of_range  when there are more columns than names
    /// @throws whatever `performBlandAltmanAnalysis` and `sortDetails` raise; `results` is then incomplete
    int run();

private:
    void runPaired(const std::vector<Column>& first, const std::vector<Column>& second);
    void runAllCombinations(const std::vector<Column>& first, const std::vector<Column>& second);
    void analysePair(const std::string& nameA, const std::string& nameB, const Column& a, const Column& b);
    void sortAllDetails();

    const BldatmanInputSetting& settings_;
    std::vector<BldatmanPairResult>& results_;
    /// Part of the object's agreed layout: kept at its initial values and read by nobody. The computations read the
    /// criteria of the settings.
    [[maybe_unused]] BldatmanCriteriaSetting criteriaSetting_;
};

}  // namespace bldatman
