#include "module/output/details_table.h"

#include "module/output/pivot_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>

namespace bldatman {

namespace {

constexpr std::uint64_t maxRows = 1000;

/// The smaller of the cases and the rows asked for, at most `maxRows`. Both are 32-bit numbers here; a count of cases
/// that does not fit comes out negative and, compared as the unsigned number of its bits, counts as above the maximum.
std::uint64_t detailRowCount(const BldatmanPairResult& record, const BldatmanPrintSetting& print)
{
    const auto caseCount = static_cast<std::int32_t>(record.differences.size());
    const auto rows = static_cast<std::uint64_t>(static_cast<std::int64_t>(std::min(caseCount, print.rows())));
    return std::min(rows, maxRows);
}

/// The texts that tell how the rows are sorted.
struct SortNote {
    const char* sortBy;
    const char* ascendingKey;
    const char* descendingKey;
};

constexpr std::array<SortNote, 4> sortNotes = {{
    {"MEASUREMENT", "^1 is sorted in ascending order", "^1 is sorted in descending order"},
    {"MEAN", "Mean is sorted in ascending order", "Mean is sorted in descending order"},
    {"RATIO", "Difference/Mean is sorted in ascending order", "Difference/Mean is sorted in descending order"},
    {"DIFFERENCE", "Difference is sorted in ascending order", "Difference is sorted in descending order"},
}};

/// Null for a sort by nothing that is known.
const char* sortNoteKey(const BldatmanPrintSetting& print)
{
    const auto* note = std::ranges::find(sortNotes, print.sortBy(), &SortNote::sortBy);
    if (note == sortNotes.end()) {
        return nullptr;
    }
    return print.sortOrder() == BldatmanPrintSetting::ascending ? note->ascendingKey : note->descendingKey;
}

/// A measurement that is not a number shows as a text, unlike any other value of the tables.
CellValue measurement(double value)
{
    if (std::isnan(value)) {
        return "nan";
    }
    return value;
}

void addFootnotes(PivotTable& table, const TableInputs& inputs, std::uint64_t rowCount)
{
    const BldatmanTextCatalogue& catalogue = inputs.catalogue;
    table.addFootnote(catalogue.getText("First ^1 records are printed.", std::to_string(rowCount)));
    table.addFootnote(
        catalogue.getText("For cases where the mean between the two measurements is zero, the ratio is set to zero, "
                          "reflecting identical measurements and included in all plots."));
    if (inputs.settings.criteriaSetting().logTransform()) {
        table.addFootnote(catalogue.getText("Data_are_log-transformed"));
    }
    const BldatmanPrintSetting& print = inputs.settings.printSetting();
    if (print.sortOrder() == BldatmanPrintSetting::unsorted) {
        return;
    }
    if (const char* key = sortNoteKey(print)) {
        table.addFootnote(catalogue.getText(key, inputs.nameA));
    } else {
        // Intended: a sort by something unknown is referred to, though there is nothing to say about it.
        table.referToFootnote();
    }
}

Descendants& makeColumns(PivotTable& table, const TableInputs& inputs)
{
    const BldatmanTextCatalogue& catalogue = inputs.catalogue;
    const std::string percentSign = inputs.settings.criteriaSetting().percentage() ? "%" : "";
    Descendants& columns = table.makeGroup();
    columns.set_label(" ");
    columns.setShowLabel(false);
    for (const std::string& header :
         {inputs.nameA, inputs.nameB, catalogue.getText("Mean"), catalogue.getText("Difference"),
          catalogue.getText("Difference/Mean") + percentSign}) {
        table.addHeader(columns, header);
    }
    return columns;
}

void addRows(PivotTable& table, const BldatmanPairResult& record, std::uint64_t rowCount)
{
    for (std::uint64_t i = 0; i < rowCount; ++i) {
        table.addRow({measurement(record.valuesA[i]), measurement(record.valuesB[i]), record.means[i],
                      record.differences[i], record.ratios[i]});
        table.addRowLabel(std::to_string(i + 1));
    }
}

}  // namespace

void addDetailsTable(const TableInputs& inputs)
{
    const BldatmanPrintSetting& print = inputs.settings.printSetting();
    if (!print.details()) {
        return;
    }
    const std::uint64_t rowCount = detailRowCount(inputs.record, print);
    PivotTable table(inputs.document, "Bland-Altman Analysis Details",
                     inputs.catalogue.getText("Bland-Altman_Analysis_Details (^1 and ^2)", inputs.nameA, inputs.nameB));
    table.setDefaultFormat();
    addFootnotes(table, inputs, rowCount);
    table.beginBody(makeColumns(table, inputs));
    addRows(table, inputs.record, rowCount);
    table.emit();
}

}  // namespace bldatman
