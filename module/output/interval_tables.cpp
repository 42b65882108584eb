// Between the two tables the default format and the footnote change places, and so do the ways in which the relative
// row is formed: the table of the bias divides, the other takes the relative limits of the record. Both are intended.
#include "module/output/interval_tables.h"

#include "module/output/pivot_table.h"
#include "module/texts/labels.h"

#include <array>

namespace bldatman {

namespace {

void addLogFootnote(PivotTable& table, const TableInputs& inputs)
{
    if (inputs.settings.criteriaSetting().logTransform()) {
        table.addFootnote(inputs.catalogue.getText("Data_are_log-transformed"));
    }
}

void addBounds(PivotTable& table, Descendants& interval, const BldatmanTextCatalogue& catalogue)
{
    table.addHeader(interval, catalogue.getText("Lower"));
    table.addHeader(interval, catalogue.getText("Upper"));
}

/// The bias, and a group with the bounds of its interval. The group is made and labelled before its parent is.
Descendants& makeBiasColumns(PivotTable& table, const TableInputs& inputs)
{
    Descendants& columns = table.makeGroup();
    Descendants& interval = table.makeGroup();
    interval.set_label(confidenceIntervalLabel(inputs.settings.criteriaSetting().ciLevelMeanDiff(), inputs.catalogue));
    columns.set_label(" ");
    columns.setShowLabel(false);
    addBounds(table, interval, inputs.catalogue);
    table.addHeader(columns, inputs.catalogue.getText("Mean Difference"));
    table.addGroup(columns, interval);
    return columns;
}

/// Four groups: each limit, and the bounds of its interval. Their parent is made last and has no label; each label is
/// set visible once its group has its place.
Descendants& makeLimitColumns(PivotTable& table, const TableInputs& inputs)
{
    const BldatmanCriteriaSetting& criteria = inputs.settings.criteriaSetting();
    const auto makeLimit = [&](const char* limitKey) {
        Descendants& group = table.makeGroup();
        group.set_label(tableLimitLabel(criteria.agreementLimit(), inputs.catalogue));
        table.addHeader(group, inputs.catalogue.getText(limitKey));
        return &group;
    };
    const auto makeInterval = [&] {
        Descendants& group = table.makeGroup();
        group.set_label(confidenceIntervalLabel(criteria.ciLevelAgreement(), inputs.catalogue));
        addBounds(table, group, inputs.catalogue);
        return &group;
    };
    const std::array groups = {makeLimit("Limit Lower"), makeInterval(), makeLimit("Limit Upper"), makeInterval()};
    Descendants& columns = table.makeGroup();
    for (Descendants* group : groups) {
        table.addGroup(columns, *group);
        group->setShowLabel(true);
    }
    return columns;
}

void addRowLabels(PivotTable& table, const TableInputs& inputs)
{
    table.addRowLabel(differenceRowLabel(inputs.nameA, inputs.nameB));
    table.addRowLabel(
        ratioRowLabel(inputs.nameA, inputs.nameB, inputs.settings.criteriaSetting().percentage(), inputs.catalogue));
}

}  // namespace

void addMeanDifferenceTable(const TableInputs& inputs)
{
    if (!inputs.settings.printSetting().printMeanDiff()) {
        return;
    }
    PivotTable table(
        inputs.document, "Confidence Intervals of Mean Differences",
        inputs.catalogue.getText("Confidence_Intervals_of_Mean_Differences (^1 and ^2)", inputs.nameA, inputs.nameB));
    addLogFootnote(table, inputs);
    table.setDefaultFormat();
    table.beginBody(makeBiasColumns(table, inputs));
    const BldatmanPairResult& record = inputs.record;
    const double multiplier = ratioMultiplier(inputs.settings.criteriaSetting().percentage());
    const auto relative = [&](double value) { return relativeToMean(value, record.meanOfMeans) * multiplier; };
    table.addRow({record.meanDifference, record.meanDifferenceCiLower, record.meanDifferenceCiUpper});
    table.addRow({relative(record.meanDifference), relative(record.meanDifferenceCiLower),
                  relative(record.meanDifferenceCiUpper)});
    addRowLabels(table, inputs);
    table.emit();
}

void addAgreementLimitTable(const TableInputs& inputs)
{
    if (!inputs.settings.printSetting().printAgreement()) {
        return;
    }
    PivotTable table(
        inputs.document, "Confidence Intervals of Agreement Limits",
        inputs.catalogue.getText("Confidence_Intervals_of_Agreement_Limits (^1 and ^2)", inputs.nameA, inputs.nameB));
    table.setDefaultFormat();
    addLogFootnote(table, inputs);
    table.beginBody(makeLimitColumns(table, inputs));
    table.setRowsLabel(" ");
    const BldatmanPairResult& record = inputs.record;
    const double m = ratioMultiplier(inputs.settings.criteriaSetting().percentage());
    table.addRow({record.lowerLimit, record.lowerLimitCiLower, record.lowerLimitCiUpper, record.upperLimit,
                  record.upperLimitCiLower, record.upperLimitCiUpper});
    table.addRow({m * record.lowerLimitRelative, m * record.lowerLimitCiLowerRelative,
                  m * record.lowerLimitCiUpperRelative, m * record.upperLimitRelative,
                  m * record.upperLimitCiLowerRelative, m * record.upperLimitCiUpperRelative});
    addRowLabels(table, inputs);
    table.emit();
}

}  // namespace bldatman
