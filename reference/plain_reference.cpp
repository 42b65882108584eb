#include "reference/plain_reference.h"

#include "host/missing_value.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <sstream>

namespace reference {

namespace {

using bldatman::BldatmanCriteriaSetting;
using bldatman::BldatmanPairResult;
using bldatman::Column;

double rounded(double value)
{
    return roundedHalfAwayFromZero(value * 1000.0) / 1000.0;
}

double logarithmOf(double value, bool wanted)
{
    return wanted && value > 0.0 ? std::log(value) : value;
}

double ratioOf(double difference, double mean, bool percentage)
{
    if (mean == 0.0) {
        return 0.0;
    }
    return percentage ? difference / mean * 100.0 : difference / mean;
}

bool isSame(double x, double y)
{
    return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y) || (std::isnan(x) && std::isnan(y));
}

std::string firstDifference(const std::string& name, const std::vector<double>& one, const std::vector<double>& other)
{
    const auto [x, y] = std::ranges::mismatch(one, other, isSame);
    if (x == one.end() && y == other.end()) {
        return "";
    }
    std::ostringstream text;
    text.precision(17);
    text << name << '[' << x - one.begin() << "]: ";
    if (x == one.end() || y == other.end()) {
        text << one.size() << " and " << other.size() << " values";
    } else {
        text << *x << " and " << *y;
    }
    return text.str();
}

}  // namespace

double roundedHalfAwayFromZero(double value)
{
    const double size = std::abs(value);
    const double whole = std::trunc(size);
    return std::copysign(size - whole < 0.5 ? whole : whole + 1.0, value);
}

BldatmanPairResult plainRecord(const Column& a, const Column& b, const BldatmanCriteriaSetting& criteria)
{
    BldatmanPairResult record{};
    std::vector<double> d;
    double sumD = 0.0;
    double sumM = 0.0;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        if (criteria.scope() == "ANALYSIS" && (a[i] == systemMissingValue || b[i] == systemMissingValue)) {
            continue;
        }
        const double x = logarithmOf(a[i], criteria.logTransform());
        const double y = logarithmOf(b[i], criteria.logTransform());
        const double mean = (x + y) * 0.5;
        d.push_back(x - y);
        sumD += d.back();
        sumM += mean;
        record.valuesA.push_back(rounded(x));
        record.valuesB.push_back(rounded(y));
        record.means.push_back(rounded(mean));
        record.differences.push_back(rounded(d.back()));
        record.ratios.push_back(rounded(ratioOf(d.back(), mean, criteria.percentage())));
    }
    const auto n = static_cast<double>(d.size());
    record.meanDifference = sumD / n;
    record.meanOfMeans = sumM / n;
    double squares = 0.0;
    for (const double difference : d) {
        squares += (difference - record.meanDifference) * (difference - record.meanDifference);
    }
    record.sdDifference = std::sqrt(squares / (n - 1.0));
    return record;
}

std::string firstDifference(const BldatmanPairResult& one, const BldatmanPairResult& other)
{
    const auto statistics = [](const BldatmanPairResult& record) {
        return std::vector{record.meanDifference, record.sdDifference, record.meanOfMeans};
    };
    for (const std::string& difference :
         {firstDifference("valuesA", one.valuesA, other.valuesA),
          firstDifference("valuesB", one.valuesB, other.valuesB), firstDifference("means", one.means, other.means),
          firstDifference("differences", one.differences, other.differences),
          firstDifference("ratios", one.ratios, other.ratios),
          firstDifference("statistics", statistics(one), statistics(other))}) {
        if (!difference.empty()) {
            return difference;
        }
    }
    return "";
}

std::vector<Column> withoutMissingCases(const std::vector<Column>& columns)
{
    std::vector<Column> kept(columns.size());
    for (std::size_t i = 0; i < columns.front().size(); ++i) {
        const bool isMissing = std::ranges::any_of(
            columns, [i](const Column& column) { return column[i] == systemMissingValue || std::isnan(column[i]); });
        for (std::size_t k = 0; !isMissing && k < columns.size(); ++k) {
            kept[k].push_back(columns[k][i]);
        }
    }
    return kept;
}

}  // namespace reference
