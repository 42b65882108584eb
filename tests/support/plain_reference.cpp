#include "tests/support/plain_reference.h"

#include "host/missing_value.h"
#include "module/analysis/analysis.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace tests {

namespace {

using bldatman::BldatmanAnalysis;
using bldatman::BldatmanCriteriaSetting;
using bldatman::BldatmanPairResult;
using bldatman::Column;

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

/// To the bit, but for which NaN it is.
bool areTheSame(const std::vector<double>& one, const std::vector<double>& other)
{
    return std::ranges::equal(one, other, [](double x, double y) {
        return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y) || (std::isnan(x) && std::isnan(y));
    });
}

}  // namespace

std::vector<double> scalarsOf(const BldatmanPairResult& r)
{
    return {r.meanDifference,
            r.sdDifference,
            r.meanDifferenceCiLower,
            r.meanDifferenceCiUpper,
            r.lowerLimit,
            r.upperLimit,
            r.lowerLimitCiLower,
            r.lowerLimitCiUpper,
            r.upperLimitCiLower,
            r.upperLimitCiUpper,
            r.meanOfMeans,
            r.lowerLimitRelative,
            r.upperLimitRelative,
            r.lowerLimitCiLowerRelative,
            r.lowerLimitCiUpperRelative,
            r.upperLimitCiLowerRelative,
            r.upperLimitCiUpperRelative};
}

double roundedHalfAwayFromZero(double value)
{
    const double size = std::abs(value);
    const double whole = std::trunc(size);
    return std::copysign(size - whole < 0.5 ? whole : whole + 1.0, value);
}

BldatmanPairResult plainStatistics(const Column& a, const Column& b, const BldatmanCriteriaSetting& criteria)
{
    const auto rounded = [](double value) { return roundedHalfAwayFromZero(value * 1000.0) / 1000.0; };
    BldatmanPairResult r{};
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
        r.valuesA.push_back(rounded(x));
        r.valuesB.push_back(rounded(y));
        r.means.push_back(rounded(mean));
        r.differences.push_back(rounded(d.back()));
        r.ratios.push_back(rounded(ratioOf(d.back(), mean, criteria.percentage())));
    }
    const auto n = static_cast<double>(d.size());
    r.meanDifference = sumD / n;
    double squares = 0.0;
    for (const double difference : d) {
        squares += (difference - r.meanDifference) * (difference - r.meanDifference);
    }
    r.sdDifference = std::sqrt(squares / (n - 1.0));
    const int degreesOfFreedom = static_cast<int>(d.size()) - 1;
    const double tBias = BldatmanAnalysis::tQuantile(criteria.ciLevelMeanDiff() / 100.0, degreesOfFreedom);
    const double tLimits = BldatmanAnalysis::tQuantile(criteria.ciLevelAgreement() / 100.0, degreesOfFreedom);
    const double z = BldatmanAnalysis::agreementMultiplier(criteria.agreementLimit());
    const double biasHalf = tBias * (r.sdDifference / std::sqrt(n));
    const double limitHalf = std::sqrt(z * z / (2.0 * (n - 1.0)) + 1.0 / n) * r.sdDifference * tLimits;
    r.meanDifferenceCiLower = r.meanDifference - biasHalf;
    r.meanDifferenceCiUpper = r.meanDifference + biasHalf;
    r.lowerLimit = r.meanDifference - z * r.sdDifference;
    r.upperLimit = r.meanDifference + z * r.sdDifference;
    r.lowerLimitCiLower = r.lowerLimit - limitHalf;
    r.lowerLimitCiUpper = r.lowerLimit + limitHalf;
    r.upperLimitCiLower = r.upperLimit - limitHalf;
    r.upperLimitCiUpper = r.upperLimit + limitHalf;
    r.meanOfMeans = sumM / n;
    const auto relative = [&r](double limit) { return r.meanOfMeans == 0.0 ? 0.0 : limit / r.meanOfMeans; };
    r.lowerLimitRelative = relative(r.lowerLimit);
    r.upperLimitRelative = relative(r.upperLimit);
    r.lowerLimitCiLowerRelative = relative(r.lowerLimitCiLower);
    r.lowerLimitCiUpperRelative = relative(r.lowerLimitCiUpper);
    r.upperLimitCiLowerRelative = relative(r.upperLimitCiLower);
    r.upperLimitCiUpperRelative = relative(r.upperLimitCiUpper);
    return r;
}

bool areTheSame(const BldatmanPairResult& one, const BldatmanPairResult& other)
{
    return areTheSame(scalarsOf(one), scalarsOf(other)) && areTheSame(one.valuesA, other.valuesA) &&
           areTheSame(one.valuesB, other.valuesB) && areTheSame(one.means, other.means) &&
           areTheSame(one.differences, other.differences) && areTheSame(one.ratios, other.ratios);
}

std::vector<Column> withoutMissingCases(const std::vector<Column>& columns)
{
    std::vector<Column> kept(columns.size());
    for (std::size_t i = 0; i < columns.front().size(); ++i) {
        const bool isWhole =
            std::ranges::none_of(columns, [i](const Column& column) { return column[i] == systemMissingValue; });
        for (std::size_t k = 0; isWhole && k < columns.size(); ++k) {
            kept[k].push_back(columns[k][i]);
        }
    }
    return kept;
}

}  // namespace tests
