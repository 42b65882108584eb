// One pivot table on its way into the document: the recipe that all tables share.
//
// The calls that it makes on the host, and their order, are fixed: title and widths, default format and footnotes (in
// the order in which the table asks for them), column headers, body rows, row labels, dimension, hand-over, release.
#pragma once

#include "host/output.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace bldatman {

/// What a body cell shows.
using CellValue = std::variant<double, std::string>;

/// Owns every host object until it is handed over, so that an error at any host call leaks nothing, and releases what
/// it owns in one order, whether an error ends the table or its last call: the table, the dimension, what was still to
/// be placed, the body.
class PivotTable {
public:
    /// A table with its title and column widths set.
    /// @param internalName  the same in every language
    PivotTable(StatJSONGenerator& generator, std::string internalName, const std::string& title);
    ~PivotTable();
    PivotTable(const PivotTable&) = delete;
    PivotTable& operator=(const PivotTable&) = delete;

    /// Numbers are shown in format type 5, 10 wide, with 3 decimals.
    void setDefaultFormat();

    /// Refers to the footnote that `add_footnote` would add next, then adds it.
    void addFootnote(const std::string& text);

    /// Refers to the footnote that would be added next, and adds none.
    void referToFootnote();

    /// A group of headers that has no place yet.
    Descendants& makeGroup();
    void addHeader(Descendants& group, const std::string& text);
    void addGroup(Descendants& parent, Descendants& child);

    /// Keeps the finished column headers and begins the body and the row headers.
    void beginBody(Descendants& columns);

    /// The row headers' own label; without a call they have none.
    void setRowsLabel(const std::string& label);

    void addRow(std::initializer_list<CellValue> values);
    void addRowLabel(const std::string& text);

    /// Puts the table together, adds it to the document and releases it.
    void emit();

private:
    Cell& makeCell(const CellValue& value);
    void release();

    std::string internalName_;  ///< the host may refer to it for as long as the table lives
    std::unique_ptr<Table> table_;
    std::unique_ptr<Dimension> dimension_;
    std::vector<std::unique_ptr<Descendants>> groups_;  ///< those that no other group or dimension owns yet
    std::vector<std::unique_ptr<Cell>> looseCells_;     ///< those that no group or body owns yet
    std::unique_ptr<Cells> cells_;
    Descendants* columns_ = nullptr;
    Descendants* rows_ = nullptr;
    int footnoteCount_ = 0;
};

}  // namespace bldatman
