// A table of a document, laid out as a grid of texts: what the renderers of text forms need of it.
#pragma once

#include <rapidjson/document.h>

#include <cstddef>
#include <string>
#include <vector>

namespace report {

/// A group label above some neighbouring columns, at least one.
struct HeaderSpan {
    std::string label;
    std::size_t firstColumn;
    std::size_t columnCount;

    /// The column after its last.
    std::size_t endColumn() const { return firstColumn + columnCount; }
    bool covers(std::size_t column) const { return firstColumn <= column && column < endColumn(); }
};

/// Every text in it is `printable`.
struct TableGrid {
    std::vector<std::vector<HeaderSpan>> groupRows;  ///< outermost first; only rows that show a label
    std::vector<std::string> columnHeaders;
    std::string rowsLabel;
    std::vector<std::string> rowHeaders;
    std::vector<std::vector<std::string>> body;  ///< numbers with the decimals of the table's format
};

/// @param table  a table object of a document
TableGrid layOut(const rapidjson::Value& table);

/// A number with so many decimals, the same in every locale.
std::string formatFixed(double number, int decimals);

}  // namespace report
