#include "module/analysis/listwise.h"

#include "host/missing_value.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>

namespace bldatman {

namespace {

using Columns = std::vector<Column>;

bool isMissing(double value)
{
    return value == systemMissingValue || std::isnan(value);
}

bool haveOneLength(const Columns& first, const Columns& second)
{
    if (second.size() < first.size()) {
        return false;
    }
    const auto hasLength = [&first](const Column& column) { return column.size() == first.front().size(); };
    return std::all_of(first.begin(), first.end(), hasLength) &&
           std::all_of(second.begin(), second.begin() + static_cast<std::ptrdiff_t>(first.size()), hasLength);
}

void markMissing(const Column& column, std::vector<char>& missing)
{
    for (std::size_t i = 0; i < column.size(); ++i) {
        missing[i] = static_cast<char>(missing[i] | static_cast<char>(isMissing(column[i])));
    }
}

void keepUnmarked(Column& column, const std::vector<char>& missing)
{
    std::size_t kept = 0;
    for (std::size_t i = 0; i < column.size(); ++i) {
        if (missing[i] == 0) {
            column[kept++] = column[i];
        }
    }
    column.resize(kept);
}

/// With columns of one length the outcome of the removals one by one is known beforehand: the cases that are complete
/// in every pair, in their order. One pass finds them, one pass keeps them.
void removeInOnePass(Columns& first, Columns& second)
{
    std::vector<char> missing(first.front().size(), 0);
    for (std::size_t k = 0; k < first.size(); ++k) {
        markMissing(first[k], missing);
        markMissing(second[k], missing);
    }
    for (std::size_t k = 0; k < first.size(); ++k) {
        keepUnmarked(first[k], missing);
        keepUnmarked(second[k], missing);
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
