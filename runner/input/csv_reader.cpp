#include "runner/input/csv_reader.h"

#include "runner/input/csv_rows.h"
#include "runner/input/encoding.h"
#include "runner/input/input_error.h"
#include "text/numbers.h"
#include "text/wording.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

namespace runner {

namespace {

using standin::DataSet;
using standin::Variable;

bool isMissing(std::string_view cell)
{
    constexpr std::size_t longest = 3;
    if (cell.size() > longest) {
        return false;
    }
    const std::string word = text::upperCase(cell);
    return word.empty() || word == "." || word == "NA" || word == "NAN";
}

std::vector<Variable> readHeader(CsvRows& rows, const std::string& fileName)
{
    std::vector<CsvCell> cells;
    if (!rows.next(cells)) {
        throw InputError(fileName, "the file has no header row; its first row must name the variables");
    }
    std::vector<Variable> variables;
    std::unordered_map<std::string_view, std::size_t> positions;
    for (const CsvCell& cell : cells) {
        const std::size_t position = variables.size() + 1;
        if (cell.raw.empty()) {
            rows.fail(cell.line, "column " + std::to_string(position) + " has no name");
        }
        const auto [earlier, isNew] = positions.emplace(cell.raw, position);
        if (!isNew) {
            rows.fail(cell.line, "columns " + std::to_string(earlier->second) + " and " + std::to_string(position) +
                                     " have the same name, " + text::inQuotes(cell.text()));
        }
        variables.emplace_back().name = cell.text();
    }
    return variables;
}

std::string counted(std::size_t count, const std::string& noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

bool nextCase(CsvRows& rows, std::vector<CsvCell>& cells, std::size_t variableCount)
{
    if (!rows.next(cells)) {
        return false;
    }
    if (cells.size() != variableCount) {
        rows.fail(cells.front().line, "this row has " + counted(cells.size(), "cell") + ", the header has " +
                                          counted(variableCount, "name"));
    }
    return true;
}

std::optional<double> readNumberCell(std::string_view cell, bool decimalComma)
{
    const auto value = text::readNumber(cell);
    return value || !decimalComma ? value : text::readNumber(cell, ',');
}

/// Adds a value to a variable, or finds that it is one of texts.
void addCell(Variable& variable, const CsvCell& cell, bool decimalComma)
{
    if (const auto value = readNumberCell(cell.raw, decimalComma)) {
        variable.values.push_back(*value);
    } else if (isMissing(cell.raw)) {
        variable.values.push_back(systemMissingValue);
    } else {
        variable.firstText = standin::FirstText{cell.line, cell.text()};
    }
}

/// Makes room for as many cases as the text is likely to hold: each takes a line, and hardly less than two bytes for
/// each cell. More is made room for as it comes.
void reserveCases(DataSet& dataSet, std::string_view text)
{
    const std::size_t cases = std::min(static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1,
                                       text.size() / (2 * dataSet.variables.size()));
    for (Variable& variable : dataSet.variables) {
        variable.values.reserve(cases);
    }
}

/// Progress is told of once in so many cases.
constexpr std::size_t casesPerStep = 1 << 14;

void tellOf(const CsvRows& rows, std::size_t cases, const Progress& progress)
{
    if (progress && cases % casesPerStep == 0) {
        progress(rows.bytesRead(), rows.byteCount());
    }
}

/// Reads all cases. A variable stops at its first text: its numbers up to there are texts as well.
void readNumbers(DataSet& dataSet, CsvRows rows, const Progress& progress)
{
    const bool decimalComma = rows.delimiter() != ',';
    std::vector<CsvCell> cells;
    for (; nextCase(rows, cells, dataSet.variables.size()); ++dataSet.caseCount) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (!dataSet.variables[i].firstText) {
                addCell(dataSet.variables[i], cells[i], decimalComma);
            }
        }
        tellOf(rows, dataSet.caseCount, progress);
    }
}

/// A variable whose cells are texts, and the codes given to them so far.
struct TextVariable {
    std::size_t position;
    std::unordered_map<std::string_view, double> codes;
};

std::vector<TextVariable> prepareTexts(DataSet& dataSet)
{
    std::vector<TextVariable> texts;
    for (std::size_t i = 0; i < dataSet.variables.size(); ++i) {
        Variable& variable = dataSet.variables[i];
        if (variable.firstText) {
            variable.level = standin::levels::nominal;
            variable.values.clear();
            texts.push_back({i, {}});
        }
    }
    return texts;
}

void addText(Variable& variable, TextVariable& text, const CsvCell& cell)
{
    if (isMissing(cell.raw)) {
        variable.values.push_back(systemMissingValue);
        return;
    }
    const auto [coded, isNew] = text.codes.emplace(cell.raw, static_cast<double>(text.codes.size() + 1));
    if (isNew) {
        variable.valueLabels.emplace_hint(variable.valueLabels.end(), coded->second, cell.text());
    }
    variable.values.push_back(coded->second);
}

/// Goes over the cases again for the variables that turned out to be of texts.
void readTexts(DataSet& dataSet, CsvRows rows, const Progress& progress)
{
    std::vector<TextVariable> texts = prepareTexts(dataSet);
    if (texts.empty()) {
        return;
    }
    std::vector<CsvCell> cells;
    for (std::size_t cases = 0; rows.next(cells); ++cases) {
        for (TextVariable& text : texts) {
            addText(dataSet.variables[text.position], text, cells[text.position]);
        }
        tellOf(rows, cases, progress);
    }
}

}  // namespace

DataSet readCsv(std::string_view text, const std::string& fileName, const Progress& progress)
{
    CsvRows rows(requireUtf8(text, fileName), fileName);
    DataSet dataSet;
    dataSet.variables = readHeader(rows, fileName);
    reserveCases(dataSet, text);
    // Each takes a copy of the walk and so begins at the first case.
    readNumbers(dataSet, rows, progress);
    readTexts(dataSet, rows, progress);
    return dataSet;
}

}  // namespace runner
