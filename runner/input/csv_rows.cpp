#include "runner/input/csv_rows.h"

#include "runner/input/input_error.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>

namespace runner {

namespace {

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

/// @param text  begins with the header row
char recogniseDelimiter(std::string_view text)
{
    constexpr std::string_view candidates = ",;\t";
    std::array<std::size_t, candidates.size()> counts{};
    bool quoted = false;
    for (const char c : text) {
        if (c == '"') {
            quoted = !quoted;
        } else if (quoted) {
            continue;
        } else if (isLineEnd(c)) {
            break;
        } else if (const auto candidate = candidates.find(c); candidate != std::string_view::npos) {
            ++counts[candidate];
        }
    }
    return candidates[static_cast<std::size_t>(std::ranges::max_element(counts) - counts.begin())];
}

}  // namespace

std::string CsvCell::text() const
{
    std::string text;
    text.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size(); ++i) {
        text += raw[i];
        if (raw[i] == '"') {
            ++i;
        }
    }
    return text;
}

// Before the header the delimiter is not known yet: lines of spaces and tabs are all blank there.
CsvRows::CsvRows(std::string_view text, const std::string& fileName)
    : text_(text)
    , fileName_(&fileName)
{
    skipBlankLines();
    delimiter_ = recogniseDelimiter(text_.substr(offset_));
    blanks_ = delimiter_ == '\t' ? " " : " \t";
}

bool CsvRows::next(std::vector<CsvCell>& cells)
{
    cells.clear();
    skipBlankLines();
    if (offset_ == text_.size()) {
        return false;
    }
    do {
        cells.push_back(standsAt('"') ? readQuotedCell() : readPlainCell());
    } while (skip(delimiter_));
    skipLineEnd();
    return true;
}

void CsvRows::fail(std::size_t line, const std::string& reason) const
{
    throw InputError(*fileName_, line, reason);
}

bool CsvRows::endsCell(char c) const
{
    return c == delimiter_ || isLineEnd(c);
}

bool CsvRows::skip(char c)
{
    const bool found = standsAt(c);
    offset_ += found ? 1 : 0;
    return found;
}

void CsvRows::skipLineEnd()
{
    const bool carriageReturn = skip('\r');
    const bool lineFeed = skip('\n');
    line_ += carriageReturn || lineFeed ? 1 : 0;
}

void CsvRows::skipBlankLines()
{
    while (offset_ < text_.size()) {
        const std::size_t end = std::min(text_.find_first_not_of(blanks_, offset_), text_.size());
        if (end < text_.size() && !isLineEnd(text_[end])) {
            return;
        }
        offset_ = end;
        skipLineEnd();
    }
}

CsvCell CsvRows::readPlainCell()
{
    const std::string_view rest = text_.substr(offset_);
    const auto end = std::ranges::find_if(rest, [this](char c) { return endsCell(c) || c == '"'; });
    const std::string_view raw = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
    offset_ += raw.size();
    if (standsAt('"')) {
        fail(line_, "a quote stands inside a cell that does not begin with one; "
                    "put such a cell in quotes and double each quote inside");
    }
    return {raw, line_};
}

CsvCell CsvRows::readQuotedCell()
{
    const std::size_t firstLine = line_;
    const std::size_t begin = ++offset_;
    do {
        offset_ = text_.find('"', offset_);
        if (offset_ == std::string_view::npos) {
            fail(firstLine, "the quote that opens a cell here is never closed");
        }
        ++offset_;
    } while (skip('"'));
    const std::string_view raw = text_.substr(begin, offset_ - 1 - begin);
    line_ += text::countLineEnds(raw);
    if (offset_ < text_.size() && !endsCell(text_[offset_])) {
        fail(line_, "something follows the closing quote of a cell; double each quote that belongs to the cell");
    }
    return {raw, firstLine};
}

}  // namespace runner
