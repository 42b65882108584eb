// Cuts a CSV text into rows of cells.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace runner {

/// One cell, cut out but not copied.
struct CsvCell {
    std::string_view raw;  ///< a view into the text, without enclosing quotes; a quote inside still doubled
    std::size_t line;      ///< where the cell begins, from 1

    /// The cell as it was meant, each doubled quote a single one. Two cells of one raw text are of one text, and the
    /// reverse: a quote stands in no cell but doubled.
    std::string text() const;
};

/// Walks over the rows of a text. A copy walks on from the same place by itself.
///
/// Promises:
/// 1. Lines end at LF, CR LF or CR; the last may lack its end. They are counted as they stand in the file, so a line
///    break inside quotes counts.
/// 2. A blank line is no row. Blank is a line of nothing but spaces, and tabs unless the tab is the delimiter.
/// 3. The delimiter is the one of ',' ';' and tab that occurs most often outside quotes in the first row, on a tie the
///    first of them in this order.
/// 4. A cell keeps its blanks: none is trimmed, inside quotes or out.
class CsvRows {
public:
    /// @param text, fileName  must outlive this object and its copies
    CsvRows(std::string_view text, const std::string& fileName);

    char delimiter() const { return delimiter_; }

    std::size_t bytesRead() const { return offset_; }
    std::size_t byteCount() const { return text_.size(); }

    /// Reads the next row into `cells`, which then hold at least one; false and no cell at the end of the text.
    ///
    /// @throws InputError  for a quote that is never closed, or that stands where none may
    bool next(std::vector<CsvCell>& cells);

    /// @throws InputError  always, with this file, a line of it, and the reason
    [[noreturn]] void fail(std::size_t line, const std::string& reason) const;

private:
    bool standsAt(char c) const { return offset_ < text_.size() && text_[offset_] == c; }
    bool endsCell(char c) const;
    bool skip(char c);
    void skipLineEnd();
    void skipBlankLines();
    CsvCell readPlainCell();
    CsvCell readQuotedCell();

    std::string_view text_;
    const std::string* fileName_;
    std::size_t offset_ = 0;
    std::size_t line_ = 1;
    char delimiter_ = ',';
    std::string_view blanks_ = " \t";
};

}  // namespace runner
