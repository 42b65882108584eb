// The two tables of interval estimates: of the bias, and of the limits of agreement. Each has a row on the scale of the
// differences and one relative to the mean of the two measurements.
//
// Between them the default format and the footnote change places, and so do the ways in which the relative row is
// formed: the table of the bias divides, the other takes the relative limits of the record. Both are intended.
#include "module/output/labels.h"
#include "module/output/output.h"
#include "module/output/pivot_table.h"

#include <array>
#include <utility>

namespace bldatman {

int BldatmanOutput::createMeanDifferenceCITable(const BldatmanPairResult& record, std::string nameA, std::string nameB)
{
    if (results_->empty()) {
        return 1;
    }
    if (!settings_->printSetting().printMeanDiff()) {
        return 0;
    }
    PivotTable table(*generator_, "Confidence Intervals of Mean Differences",
                     text("Confidence_Intervals_of_Mean_Differences (^1 and ^2)", nameA, nameB));
    addLogFootnote(table);
    table.setDefaultFormat();
    table.beginBody(makeBiasColumns(table));
    const double multiplier = ratioMultiplier(settings_->criteriaSetting().percentage());
    const auto relative = [&](double value) { return relativeToMean(value, record.meanOfMeans) * multiplier; };
    table.addRow({record.meanDifference, record.meanDifferenceCiLower, record.meanDifferenceCiUpper});
    table.addRow({relative(record.meanDifference), relative(record.meanDifferenceCiLower),
                  relative(record.meanDifferenceCiUpper)});
    addIntervalRowLabels(table, nameA, nameB);
    table.emit();
    return 0;
}

int BldatmanOutput::createAgreementLimitCITable(const BldatmanPairResult& record, std::string nameA, std::string nameB)
{
    if (results_->empty()) {
        return 1;
    }
    if (!settings_->printSetting().printAgreement()) {
        return 0;
    }
    PivotTable table(*generator_, "Confidence Intervals of Agreement Limits",
                     text("Confidence_Intervals_of_Agreement_Limits (^1 and ^2)", nameA, nameB));
    table.setDefaultFormat();
    addLogFootnote(table);
    table.beginBody(makeLimitColumns(table));
    table.setRowsLabel(" ");
    const double m = ratioMultiplier(settings_->criteriaSetting().percentage());
    table.addRow({record.lowerLimit, record.lowerLimitCiLower, record.lowerLimitCiUpper, record.upperLimit,
                  record.upperLimitCiLower, record.upperLimitCiUpper});
    table.addRow({m * record.lowerLimitRelative, m * record.lowerLimitCiLowerRelative,
                  m * record.lowerLimitCiUpperRelative, m * record.upperLimitRelative,
                  m * record.upperLimitCiLowerRelative, m * record.upperLimitCiUpperRelative});
    addIntervalRowLabels(table, nameA, nameB);
    table.emit();
    return 0;
}

void BldatmanOutput::addLogFootnote(PivotTable& table) const
{
    if (settings_->criteriaSetting().logTransform()) {
        table.addFootnote(text("Data_are_log-transformed"));
    }
}

/// The bias, and a group with the bounds of its interval. The group is made and labelled before its parent is.
std::unique_ptr<Descendants> BldatmanOutput::makeBiasColumns(PivotTable& table) const
{
    auto columns = table.makeGroup();
    auto interval = table.makeGroup();
    interval->set_label(confidenceIntervalLabel(settings_->criteriaSetting().ciLevelMeanDiff()));
    columns->set_label(" ");
    columns->setShowLabel(false);
    table.addHeader(*interval, text("Lower"));
    table.addHeader(*interval, text("Upper"));
    table.addHeader(*columns, text("Mean Difference"));
    PivotTable::addGroup(*columns, std::move(interval));
    return columns;
}

/// Four groups: each limit, and the bounds of its interval. Their parent is made last and has no label; each label is
/// set visible once its group has its place.
std::unique_ptr<Descendants> BldatmanOutput::makeLimitColumns(PivotTable& table) const
{
    const auto makeLimit = [&](const char* limitKey) {
        auto group = table.makeGroup();
        group->set_label(agreementLabel());
        table.addHeader(*group, text(limitKey));
        return group;
    };
    const auto makeInterval = [&] {
        auto group = table.makeGroup();
        group->set_label(confidenceIntervalLabel(settings_->criteriaSetting().ciLevelAgreement()));
        table.addHeader(*group, text("Lower"));
        table.addHeader(*group, text("Upper"));
        return group;
    };
    std::array groups = {makeLimit("Limit Lower"), makeInterval(), makeLimit("Limit Upper"), makeInterval()};
    auto columns = table.makeGroup();
    for (auto& group : groups) {
        Descendants& placed = *group;
        PivotTable::addGroup(*columns, std::move(group));
        placed.setShowLabel(true);
    }
    return columns;
}

void BldatmanOutput::addIntervalRowLabels(PivotTable& table, const std::string& nameA, const std::string& nameB) const
{
    table.addRowLabel(differenceRowLabel(nameA, nameB));
    table.addRowLabel(ratioRowLabel(nameA, nameB, settings_->criteriaSetting().percentage(), *catalogue_));
}

}  // namespace bldatman
