#include "module/analysis/analysis.h"

#include "module/analysis/listwise.h"
#include "module/diagnostics.h"
#include "module/settings/input_setting.h"

#include <algorithm>
#include <stdexcept>

namespace bldatman {

namespace {

/// The name of a column. A host that delivers more values than variables were named leaves columns without one.
const std::string& nameOf(std::size_t column, const std::vector<std::string>& names)
{
    if (column >= names.size()) {
        throw std::out_of_range("A column of case values has no variable name.");
    }
    return names[column];
}

}  // namespace

BldatmanAnalysis::BldatmanAnalysis(const BldatmanInputSetting& settings, std::vector<BldatmanPairResult>& results)
    : settings_(settings)
    , results_(results)
{
}

int BldatmanAnalysis::run()
{
    std::vector<Column> first = settings_.variableSetting().variableColumns();
    std::vector<Column> second = settings_.variableSetting().withColumns();
    if (settings_.criteriaSetting().scope() == "LISTWISE") {
        removeMissingCases(first, second);
    }
    if (settings_.variableSetting().paired()) {
        runPaired(first, second);
    } else {
        runAllCombinations(first, second);
    }
    sortAllDetails();
    return 0;
}

void BldatmanAnalysis::runPaired(const std::vector<Column>& first, const std::vector<Column>& second)
{
    const BldatmanVariableSetting& variables = settings_.variableSetting();
    const std::size_t pairCount = std::min(first.size(), second.size());
    for (std::size_t k = 0; k < pairCount; ++k) {
        analysePair(nameOf(k, variables.variableNames()), nameOf(k, variables.withNames()), first[k], second[k]);
    }
    if (first.size() != second.size()) {
        reportLine("Warning: Data sets have different sizes. Processed up to the smallest size.");
    }
}

void BldatmanAnalysis::runAllCombinations(const std::vector<Column>& first, const std::vector<Column>& second)
{
    const BldatmanVariableSetting& variables = settings_.variableSetting();
    for (std::size_t i = 0; i < first.size(); ++i) {
        for (std::size_t j = 0; j < second.size(); ++j) {
            analysePair(nameOf(i, variables.variableNames()), nameOf(j, variables.withNames()), first[i], second[j]);
        }
    }
}

void BldatmanAnalysis::analysePair(const std::string& nameA, const std::string& nameB, const Column& a, const Column& b)
{
    if (nameA != nameB) {
        results_.push_back(performBlandAltmanAnalysis(nameA, nameB, a, b, settings_.criteriaSetting()));
    }
}

void BldatmanAnalysis::sortAllDetails()
{
    const BldatmanPrintSetting& print = settings_.printSetting();
    if (print.sortOrder() == BldatmanPrintSetting::unsorted) {
        return;
    }
    const bool descending = print.sortOrder() != BldatmanPrintSetting::ascending;
    for (BldatmanPairResult& record : results_) {
        sortDetails(record, print.sortBy(), descending);
    }
}

}  // namespace bldatman
