#include "module/analysis/detail_sorting.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <stdexcept>
#include <utility>

namespace bldatman {

namespace {

const std::vector<double>& keyVector(const BldatmanPairResult& record, const std::string& key)
{
    if (key == "MEAN") {
        return record.means;
    }
    if (key == "RATIO") {
        return record.ratios;
    }
    if (key == "DIFFERENCE") {
        return record.differences;
    }
    if (key == "MEASUREMENT") {
        return record.valuesA;
    }
    throw std::invalid_argument("Invalid sort key: " + key);
}

void requireOneLength(const BldatmanPairResult& record, std::size_t length)
{
    for (const auto* values : {&record.means, &record.differences, &record.ratios, &record.valuesA, &record.valuesB}) {
        if (values->size() != length) {
            throw std::runtime_error("Mismatch in vector sizes within the result structure.");
        }
    }
}

struct KeyedPosition {
    double key;
    std::size_t position;
};

/// A total order, so that any sort can live with it: numbers by key in the direction asked for, then what is no number,
/// and case order within equals.
template <class Before>
bool precedes(const KeyedPosition& x, const KeyedPosition& y, Before before)
{
    if (before(x.key, y.key)) {
        return true;
    }
    if (before(y.key, x.key)) {
        return false;
    }
    if (std::isnan(x.key) != std::isnan(y.key)) {
        return std::isnan(y.key);
    }
    return x.position < y.position;
}

std::vector<KeyedPosition> keyedPositions(const std::vector<double>& keys)
{
    std::vector<KeyedPosition> result(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        result[i] = {keys[i], i};
    }
    return result;
}

std::vector<std::size_t> sortedPositions(const std::vector<double>& keys, bool descending)
{
    std::vector<KeyedPosition> keyed = keyedPositions(keys);
    if (descending) {
        std::ranges::sort(keyed, [](const auto& x, const auto& y) { return precedes(x, y, std::greater<>()); });
    } else {
        std::ranges::sort(keyed, [](const auto& x, const auto& y) { return precedes(x, y, std::less<>()); });
    }
    std::vector<std::size_t> positions(keyed.size());
    std::ranges::transform(keyed, positions.begin(), &KeyedPosition::position);
    return positions;
}

}  // namespace

void BldatmanDetailSorting::sortDetails(BldatmanPairResult& record, const std::string& key, bool descending)
{
    const std::vector<double>& keys = keyVector(record, key);
    if (keys.empty()) {
        throw std::invalid_argument("The selected vector for sorting is empty.");
    }
    requireOneLength(record, keys.size());
    const std::vector<std::size_t> positions = sortedPositions(keys, descending);
    for (auto* values : {&record.means, &record.differences, &record.ratios, &record.valuesA, &record.valuesB}) {
        applyPermutation(*values, positions);
    }
}

void BldatmanDetailSorting::applyPermutation(std::vector<double>& values, const std::vector<std::size_t>& positions)
{
    std::vector<double> reordered(positions.size());
    std::ranges::transform(positions, reordered.begin(), [&values](std::size_t position) { return values[position]; });
    values = std::move(reordered);
}

}  // namespace bldatman
