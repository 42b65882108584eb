// The computation of one pair. The numbers in the comments are those of the promises in analysis.h.
#include "host/missing_value.h"
#include "module/analysis/analysis.h"
#include "module/diagnostics.h"

#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/students_t.hpp>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace bldatman {

namespace {

constexpr int storedDecimals = 3;

/// Promise 1.
void refuseEqualNames(const std::string& nameA, const std::string& nameB)
{
    if (nameA == nameB) {
        const char* text =
            "ERROR : performBlandAltmanAnalysis:- The variable names for A and B are the same. Exiting function.";
        reportLine(text);
        throw std::invalid_argument(text);
    }
}

double decimalFactor(int decimals)
{
    return decimals == 2 ? 100.0 : std::pow(10.0, decimals);
}

double roundWithFactor(double value, double factor)
{
    return std::round(value * factor) / factor;
}

/// The working series of one pair. A and B are the pair's own copies, replaced by their logarithms where asked; M and
/// D are the means and differences per case, unrounded.
struct Series {
    Column a;
    Column b;
    Column m;
    Column d;

    std::size_t count() const { return d.size(); }
};

void takeLogarithm(double& value)
{
    if (value > 0.0) {
        value = std::log(value);
    }
}

/// Promise 3, and the means and differences.
Series makeSeries(Column a, Column b, bool logTransform)
{
    const std::size_t count = std::min(a.size(), b.size());
    Series series{std::move(a), std::move(b), Column(count), Column(count)};
    for (std::size_t i = 0; i < count; ++i) {
        if (logTransform) {
            takeLogarithm(series.a[i]);
            takeLogarithm(series.b[i]);
        }
        series.m[i] = (series.a[i] + series.b[i]) * 0.5;
        series.d[i] = series.a[i] - series.b[i];
    }
    return series;
}

int degreesOfFreedom(const Series& series)
{
    return static_cast<int>(series.count()) - 1;
}

/// Promises 4 and 5.
void setBias(BldatmanPairResult& record, const Series& series, double level)
{
    record.meanDifference = BldatmanAnalysis::computeMean(series.d);
    record.sdDifference = BldatmanAnalysis::computeSD(series.d, record.meanDifference);
    const double standardError = record.sdDifference / std::sqrt(static_cast<double>(series.count()));
    const double t = BldatmanAnalysis::tQuantile(level / 100.0, degreesOfFreedom(series));
    record.meanDifferenceCiLower = record.meanDifference - t * standardError;
    record.meanDifferenceCiUpper = record.meanDifference + t * standardError;
}

/// Promise 6.
void setLimits(BldatmanPairResult& record, const Series& series, double agreementLimit, double level)
{
    const auto n = static_cast<double>(series.count());
    const double t = BldatmanAnalysis::tQuantile(level / 100.0, degreesOfFreedom(series));
    const double z = BldatmanAnalysis::agreementMultiplier(agreementLimit);
    record.upperLimit = record.meanDifference + z * record.sdDifference;
    record.lowerLimit = record.meanDifference - z * record.sdDifference;
    const double halfWidth = std::sqrt(z * z / (2.0 * (n - 1.0)) + 1.0 / n) * record.sdDifference * t;
    record.lowerLimitCiLower = record.lowerLimit - halfWidth;
    record.lowerLimitCiUpper = record.lowerLimit + halfWidth;
    record.upperLimitCiLower = record.upperLimit - halfWidth;
    record.upperLimitCiUpper = record.upperLimit + halfWidth;
}

/// Promise 7.
void setRelativeLimits(BldatmanPairResult& record, const Series& series)
{
    record.meanOfMeans = BldatmanAnalysis::computeMean(series.m);
    const auto relative = [&record](double limit) { return relativeToMean(limit, record.meanOfMeans); };
    record.lowerLimitRelative = relative(record.lowerLimit);
    record.lowerLimitCiLowerRelative = relative(record.lowerLimitCiLower);
    record.lowerLimitCiUpperRelative = relative(record.lowerLimitCiUpper);
    record.upperLimitRelative = relative(record.upperLimit);
    record.upperLimitCiLowerRelative = relative(record.upperLimitCiLower);
    record.upperLimitCiUpperRelative = relative(record.upperLimitCiUpper);
}

double ratioOf(double difference, double mean, bool percentage)
{
    if (mean == 0.0) {
        return 0.0;
    }
    return percentage ? difference / mean * 100.0 : difference / mean;
}

/// The first `count` values, rounded.
std::vector<double> rounded(const Column& values, std::size_t count)
{
    const double factor = decimalFactor(storedDecimals);
    std::vector<double> result(count);
    std::transform(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(count), result.begin(),
                   [factor](double value) { return roundWithFactor(value, factor); });
    return result;
}

std::vector<double> roundedRatios(const Series& series, bool percentage)
{
    const double factor = decimalFactor(storedDecimals);
    std::vector<double> result(series.count());
    for (std::size_t i = 0; i < result.size(); ++i) {
        result[i] = roundWithFactor(ratioOf(series.d[i], series.m[i], percentage), factor);
    }
    return result;
}

/// Promise 8.
void setCaseValues(BldatmanPairResult& record, const Series& series, bool percentage)
{
    record.valuesA = rounded(series.a, series.count());
    record.valuesB = rounded(series.b, series.count());
    record.ratios = roundedRatios(series, percentage);
    record.differences = rounded(series.d, series.count());
    record.means = rounded(series.m, series.count());
}

}  // namespace

BldatmanPairResult BldatmanAnalysis::performBlandAltmanAnalysis(const std::string& nameA, const std::string& nameB,
                                                                Column a, Column b,
                                                                const BldatmanCriteriaSetting& criteria)
{
    BldatmanPairResult record{};
    refuseEqualNames(nameA, nameB);
    record.nameA = nameA;
    record.nameB = nameB;
    if (criteria.scope() == "ANALYSIS") {
        removeMissingPairs(a, b, std::min(a.size(), b.size()));
    }
    const Series series = makeSeries(std::move(a), std::move(b), criteria.logTransform());
    setBias(record, series, criteria.ciLevelMeanDiff());
    setLimits(record, series, criteria.agreementLimit(), criteria.ciLevelAgreement());
    setRelativeLimits(record, series);
    setCaseValues(record, series, criteria.percentage());
    return record;
}

double BldatmanAnalysis::computeMean(const std::vector<double>& values)
{
    double sum = 0.0;
    for (const double value : values) {
        sum += value;
    }
    return sum / static_cast<double>(values.size());
}

double BldatmanAnalysis::computeSD(const std::vector<double>& values, double mean)
{
    double sum = 0.0;
    for (const double value : values) {
        sum += (value - mean) * (value - mean);
    }
    return std::sqrt(sum / (static_cast<double>(values.size()) - 1.0));
}

double BldatmanAnalysis::agreementMultiplier(double agreementLimit)
{
    if (agreementLimit == 95.0) {
        return 1.96;
    }
    if (agreementLimit == 99.0) {
        return 2.576;
    }
    if (agreementLimit == BldatmanCriteriaSetting::twoStandardDeviations) {
        return 2.0;
    }
    if (agreementLimit == BldatmanCriteriaSetting::threeStandardDeviations) {
        return 3.0;
    }
    const boost::math::normal_distribution<double> standardNormal(0.0, 1.0);
    return boost::math::quantile(standardNormal, (agreementLimit / 100.0 + 1.0) * 0.5);
}

double BldatmanAnalysis::tQuantile(double fraction, int degreesOfFreedom)
{
    const boost::math::students_t_distribution<double> studentsT(degreesOfFreedom);
    return boost::math::quantile(studentsT, (fraction + 1.0) * 0.5);
}

/// Promise 2.
void BldatmanAnalysis::removeMissingPairs(Column& a, Column& b, std::size_t limit)
{
    std::size_t kept = 0;
    const auto keep = [&](std::size_t from) {
        a[kept] = a[from];
        b[kept] = b[from];
        ++kept;
    };
    for (std::size_t i = 0; i < limit; ++i) {
        if (a[i] != systemMissingValue && b[i] != systemMissingValue) {
            keep(i);
        }
    }
    const auto closeGap = [kept, limit](Column& column) {
        column.erase(column.begin() + static_cast<std::ptrdiff_t>(kept),
                     column.begin() + static_cast<std::ptrdiff_t>(limit));
    };
    closeGap(a);
    closeGap(b);
}

double BldatmanAnalysis::roundToDecimals(double value, int decimals)
{
    return roundWithFactor(value, decimalFactor(decimals));
}

}  // namespace bldatman
