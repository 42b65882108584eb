#include "module/analysis/listwise.h"

#include "module/analysis/case_blocks.h"
#include "module/analysis/column_arithmetic.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>

namespace bldatman {

namespace {

using Columns = std::vector<Column>;

bool haveOneLength(const Columns& first, const Columns& second)
{
    if (second.size() < first.size()) {
        return false;
    }
    const auto hasLength = [&first](const Column& column) { return column.size() == first.front().size(); };
    return std::all_of(first.begin(), first.end(), hasLength) &&
           std::all_of(second.begin(), second.begin() + static_cast<std::ptrdiff_t>(first.size()), hasLength);
}

std::vector<Column*> columnsOfPairs(Columns& first, Columns& second)
{
    std::vector<Column*> columns;
    for (std::size_t k = 0; k < first.size(); ++k) {
        columns.push_back(&first[k]);
        columns.push_back(&second[k]);
    }
    return columns;
}

/// Moves the unmarked values of the block up to the place `to` and returns the place behind them. Every value is moved,
/// and the place goes on only past those that stay: no processor could foresee a branch here.
std::size_t moveUp(Column& column, const CaseBlock& block, const std::vector<double>& marks, std::size_t to)
{
    for (std::size_t i = 0; i < block.size(); ++i) {
        column[to] = column[block.begin + i];
        to += marks[i] == 0.0 ? 1U : 0U;
    }
    return to;
}

/// With columns of one length the outcome of the removals one by one is known beforehand: the cases that are complete
/// in every pair, in their order.
void removeInOnePass(Columns& first, Columns& second)
{
    const std::vector<Column*> columns = columnsOfPairs(first, second);
    std::vector<double> marks;
    std::size_t kept = 0;
    forEachBlock(first.front().size(), [&](const CaseBlock& block) {
        marks.assign(block.size(), 0.0);
        for (const Column* column : columns) {
            markMissing(block.of(*column), marks);
        }
        std::size_t end = kept;
        for (Column* column : columns) {
            end = moveUp(*column, block, marks, kept);  // the same for every column
        }
        kept = end;
    });
    for (Column* column : columns) {
        column->resize(kept);
    }
}

void eraseCase(Columns& first, Columns& second, std::size_t position)
{
    for (std::size_t k = 0; k < std::min(first.size(), second.size()); ++k) {
        if (position < first[k].size() && position < second[k].size()) {
            first[k].erase(first[k].begin() + static_cast<std::ptrdiff_t>(position));
            second[k].erase(second[k].begin() + static_cast<std::ptrdiff_t>(position));
        }
    }
}

void removeOneByOne(Columns& first, Columns& second)
{
    for (std::size_t k = 0; k < first.size(); ++k) {
        if (k >= second.size() || first[k].size() != second[k].size()) {
            throw std::runtime_error("Inner vectors must have the same size");
        }
        for (std::size_t i = first[k].size(); i-- > 0;) {
            if (isMissing(first[k][i]) || isMissing(second[k][i])) {
                eraseCase(first, second, i);
            }
        }
    }
}

}  // namespace

void removeMissingCases(std::vector<Column>& first, std::vector<Column>& second)
{
    if (first.empty()) {
        return;
    }
    if (haveOneLength(first, second)) {
        removeInOnePass(first, second);
    } else {
        removeOneByOne(first, second);
    }
}

}  // namespace bldatman
