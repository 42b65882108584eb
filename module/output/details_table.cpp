// The details table: one row per case, with the two measurements, their mean, difference and ratio.
#include "module/output/labels.h"
#include "module/output/output.h"
#include "module/output/pivot_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

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

std::unique_ptr<Descendants> makeColumns(PivotTable& table, std::initializer_list<std::string> headers)
{
    auto columns = table.makeGroup();
    columns->set_label(" ");
    columns->setShowLabel(false);
    for (const std::string& header : headers) {
        table.addHeader(*columns, header);
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

int BldatmanOutput::createDetailsTable(const BldatmanPairResult& record, std::string nameA, std::string nameB)
{
    if (results_->empty()) {
        return 1;
    }
    if (!settings_->printSetting().details()) {
        return 0;
    }
    const std::uint64_t rowCount = detailRowCount(record, settings_->printSetting());
    PivotTable table(*generator_, "Bland-Altman Analysis Details",
                     text("Bland-Altman_Analysis_Details (^1 and ^2)", nameA, nameB));
    table.setDefaultFormat();
    addDetailFootnotes(table, rowCount, nameA);
    const std::string percentSign = settings_->criteriaSetting().percentage() ? "%" : "";
    table.beginBody(
        makeColumns(table, {nameA, nameB, text("Mean"), text("Difference"), text("Difference/Mean") + percentSign}));
    addRows(table, record, rowCount);
    table.emit();
    return 0;
}

void BldatmanOutput::addDetailFootnotes(PivotTable& table, std::uint64_t rowCount, const std::string& nameA) const
{
    table.addFootnote(text("First ^1 records are printed.", std::to_string(rowCount)));
    table.addFootnote(text("For cases where the mean between the two measurements is zero, the ratio is set to zero, "
                           "reflecting identical measurements and included in all plots."));
    if (settings_->criteriaSetting().logTransform()) {
        table.addFootnote(text("Data_are_log-transformed"));
    }
    const BldatmanPrintSetting& print = settings_->printSetting();
    if (print.sortOrder() == BldatmanPrintSetting::unsorted) {
        return;
    }
    if (const char* key = sortNoteKey(print)) {
        table.addFootnote(text(key, nameA));
    } else {
        // Intended: a sort by something unknown is referred to, though there is nothing to say about it.
        table.referToFootnote();
    }
}

}  // namespace bldatman
