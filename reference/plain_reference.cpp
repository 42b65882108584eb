#include "reference/plain_reference.h"

#include "host/missing_value.h"

#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/students_t.hpp>

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

/// The quantile that leaves half of what `percent` lacks above it.
template <class Distribution>
double upperQuantile(const Distribution& distribution, double percent)
{
    return quantile(distribution, (percent / 100.0 + 1.0) * 0.5);
}

double limitMultiplier(double agreementLimit)
{
    if (agreementLimit < 0.0) {
        return -agreementLimit;  // so many standard deviations
    }
    return agreementLimit == 95.0   ? 1.96
           : agreementLimit == 99.0 ? 2.576
                                    : upperQuantile(boost::math::normal_distribution<double>(), agreementLimit);
}

void setIntervals(BldatmanPairResult& record, double n, const BldatmanCriteriaSetting& criteria)
{
    const boost::math::students_t_distribution<double> t(n - 1.0);
    const double z = limitMultiplier(criteria.agreementLimit());
    const double sd = record.sdDifference;
    const double biasWidth = upperQuantile(t, criteria.ciLevelMeanDiff()) * (sd / std::sqrt(n));
    const double limitWidth =
        std::sqrt(z * z / (2.0 * (n - 1.0)) + 1.0 / n) * sd * upperQuantile(t, criteria.ciLevelAgreement());
    record.meanDifferenceCiLower = record.meanDifference - biasWidth;
    record.meanDifferenceCiUpper = record.meanDifference + biasWidth;
    record.lowerLimit = record.meanDifference - z * sd;
    record.lowerLimitCiLower = record.lowerLimit - limitWidth;
    record.lowerLimitCiUpper = record.lowerLimit + limitWidth;
    record.upperLimit = record.meanDifference + z * sd;
    record.upperLimitCiLower = record.upperLimit - limitWidth;
    record.upperLimitCiUpper = record.upperLimit + limitWidth;
}

void setRelativeLimits(BldatmanPairResult& record)
{
    const double m = record.meanOfMeans;
    const bool none = m == 0.0;
    record.lowerLimitRelative = none ? 0.0 : record.lowerLimit / m;
    record.lowerLimitCiLowerRelative = none ? 0.0 : record.lowerLimitCiLower / m;
    record.lowerLimitCiUpperRelative = none ? 0.0 : record.lowerLimitCiUpper / m;
    record.upperLimitRelative = none ? 0.0 : record.upperLimit / m;
    record.upperLimitCiLowerRelative = none ? 0.0 : record.upperLimitCiLower / m;
    record.upperLimitCiUpperRelative = none ? 0.0 : record.upperLimitCiUpper / m;
}

/// All seventeen, in the order of the record.
std::vector<double> statisticsOf(const BldatmanPairResult& record)
{
    return {record.meanDifference,
            record.sdDifference,
            record.meanDifferenceCiLower,
            record.meanDifferenceCiUpper,
            record.lowerLimit,
            record.upperLimit,
            record.lowerLimitCiLower,
            record.lowerLimitCiUpper,
            record.upperLimitCiLower,
            record.upperLimitCiUpper,
            record.meanOfMeans,
            record.lowerLimitRelative,
            record.lowerLimitCiLowerRelative,
            record.lowerLimitCiUpperRelative,
            record.upperLimitRelative,
            record.upperLimitCiLowerRelative,
            record.upperLimitCiUpperRelative};
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
    setIntervals(record, n, criteria);
    setRelativeLimits(record);
    return record;
}

std::string firstDifference(const BldatmanPairResult& one, const BldatmanPairResult& other)
{
    for (const std::string& difference :
         {firstDifference("valuesA", one.valuesA, other.valuesA),
          firstDifference("valuesB", one.valuesB, other.valuesB), firstDifference("means", one.means, other.means),
          firstDifference("differences", one.differences, other.differences),
          firstDifference("ratios", one.ratios, other.ratios),
          firstDifference("statistics", statisticsOf(one), statisticsOf(other))}) {
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
