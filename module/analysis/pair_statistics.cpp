// The numbers in the comments are those of the promises.
#include "module/analysis/pair_statistics.h"

#include "host/missing_value.h"
#include "module/analysis/case_blocks.h"
#include "module/analysis/column_arithmetic.h"
#include "module/diagnostics.h"

#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/students_t.hpp>

#include <algorithm>
#include <cmath>
#include <span>
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

/// For two decimals the number itself: nothing is left to how well a library raises to a power.
double decimalFactor(int decimals)
{
    return decimals == 2 ? 100.0 : std::pow(10.0, decimals);
}

void takeLogarithms(std::span<double> values)
{
    for (double& value : values) {
        if (value > 0.0) {
            value = std::log(value);
        }
    }
}

/// Makes the pair's copies of its values those of the record.
void takeValues(BldatmanPairResult& record, Column a, Column b)
{
    const std::size_t count = std::min(a.size(), b.size());
    for (Column* values : {&a, &b}) {
        values->resize(count);
        if (values->capacity() / 2 > count) {
            values->shrink_to_fit();  // worth a copy: the record keeps its room until the command ends
        }
    }
    record.valuesA = std::move(a);
    record.valuesB = std::move(b);
}

std::size_t caseCount(const BldatmanPairResult& record)
{
    return record.differences.size();
}

/// Promises 3 and 8, in one walk over the cases: the values as logarithms and then rounded, the means and differences
/// of what they were before they were rounded.
void setCaseValues(BldatmanPairResult& record, bool logTransform)
{
    const std::size_t count = record.valuesA.size();
    record.means.reserve(count);
    record.differences.reserve(count);
    const double factor = decimalFactor(storedDecimals);
    forEachBlock(count, [&](const CaseBlock& block) {
        // Block by block, so that the zeros of a resize are still in the cache when they are written over.
        record.means.resize(block.end);
        record.differences.resize(block.end);
        const std::span<double> valuesA = block.of(record.valuesA);
        const std::span<double> valuesB = block.of(record.valuesB);
        if (logTransform) {
            takeLogarithms(valuesA);
            takeLogarithms(valuesB);
        }
        fillMeans(valuesA, valuesB, block.of(record.means));
        fillDifferences(valuesA, valuesB, block.of(record.differences));
        roundAll(valuesA, factor);
        roundAll(valuesB, factor);
    });
}

int degreesOfFreedom(const BldatmanPairResult& record)
{
    return static_cast<int>(caseCount(record)) - 1;
}

/// Promises 4 and 5.
void setBias(BldatmanPairResult& record, double level)
{
    record.meanDifference = BldatmanPairStatistics::computeMean(record.differences);
    record.sdDifference = BldatmanPairStatistics::computeSD(record.differences, record.meanDifference);
    const double standardError = record.sdDifference / std::sqrt(static_cast<double>(caseCount(record)));
    const double t = BldatmanPairStatistics::tQuantile(level / 100.0, degreesOfFreedom(record));
    record.meanDifferenceCiLower = record.meanDifference - t * standardError;
    record.meanDifferenceCiUpper = record.meanDifference + t * standardError;
}

/// Promise 6.
void setLimits(BldatmanPairResult& record, double agreementLimit, double level)
{
    const auto n = static_cast<double>(caseCount(record));
    const double t = BldatmanPairStatistics::tQuantile(level / 100.0, degreesOfFreedom(record));
    const double z = BldatmanPairStatistics::agreementMultiplier(agreementLimit);
    record.upperLimit = record.meanDifference + z * record.sdDifference;
    record.lowerLimit = record.meanDifference - z * record.sdDifference;
    const double halfWidth = std::sqrt(z * z / (2.0 * (n - 1.0)) + 1.0 / n) * record.sdDifference * t;
    record.lowerLimitCiLower = record.lowerLimit - halfWidth;
    record.lowerLimitCiUpper = record.lowerLimit + halfWidth;
    record.upperLimitCiLower = record.upperLimit - halfWidth;
    record.upperLimitCiUpper = record.upperLimit + halfWidth;
}

/// Promise 7.
void setRelativeLimits(BldatmanPairResult& record)
{
    record.meanOfMeans = BldatmanPairStatistics::computeMean(record.means);
    const auto relative = [&record](double limit) { return relativeToMean(limit, record.meanOfMeans); };
    record.lowerLimitRelative = relative(record.lowerLimit);
    record.lowerLimitCiLowerRelative = relative(record.lowerLimitCiLower);
    record.lowerLimitCiUpperRelative = relative(record.lowerLimitCiUpper);
    record.upperLimitRelative = relative(record.upperLimit);
    record.upperLimitCiLowerRelative = relative(record.upperLimitCiLower);
    record.upperLimitCiUpperRelative = relative(record.upperLimitCiUpper);
}

/// Promise 8, the rest of it: the ratios, of means and differences that are rounded only then.
void setRatiosAndRoundPairs(BldatmanPairResult& record, bool percentage)
{
    record.ratios.reserve(caseCount(record));
    const double factor = decimalFactor(storedDecimals);
    forEachBlock(caseCount(record), [&](const CaseBlock& block) {
        record.ratios.resize(block.end);
        fillRatios(block.of(record.differences), block.of(record.means), percentage ? 100.0 : 1.0,
                   block.of(record.ratios));
        for (auto* values : {&record.ratios, &record.differences, &record.means}) {
            roundAll(block.of(*values), factor);
        }
    });
}

}  // namespace

BldatmanPairResult BldatmanPairStatistics::performBlandAltmanAnalysis(const std::string& nameA,
                                                                      const std::string& nameB, Column a, Column b,
                                                                      const BldatmanCriteriaSetting& criteria)
{
    BldatmanPairResult record{};
    refuseEqualNames(nameA, nameB);
    record.nameA = nameA;
    record.nameB = nameB;
    if (criteria.scope() == "ANALYSIS") {
        removeMissingPairs(a, b, std::min(a.size(), b.size()));
    }
    takeValues(record, std::move(a), std::move(b));
    setCaseValues(record, criteria.logTransform());  // exact up to the last step
    setBias(record, criteria.ciLevelMeanDiff());
    setLimits(record, criteria.agreementLimit(), criteria.ciLevelAgreement());
    setRelativeLimits(record);
    setRatiosAndRoundPairs(record, criteria.percentage());
    return record;
}

double BldatmanPairStatistics::computeMean(const std::vector<double>& values)
{
    double sum = 0.0;
    for (const double value : values) {
        sum += value;
    }
    return sum / static_cast<double>(values.size());
}

double BldatmanPairStatistics::computeSD(const std::vector<double>& values, double mean)
{
    double sum = 0.0;
    for (const double value : values) {
        sum += (value - mean) * (value - mean);
    }
    return std::sqrt(sum / (static_cast<double>(values.size()) - 1.0));
}

double BldatmanPairStatistics::agreementMultiplier(double agreementLimit)
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

double BldatmanPairStatistics::tQuantile(double fraction, int degreesOfFreedom)
{
    const boost::math::students_t_distribution<double> studentsT(degreesOfFreedom);
    return boost::math::quantile(studentsT, (fraction + 1.0) * 0.5);
}

/// Promise 2.
void BldatmanPairStatistics::removeMissingPairs(Column& a, Column& b, std::size_t limit)
{
    std::size_t kept = 0;
    for (std::size_t i = 0; i < limit; ++i) {
        // Every case is moved, and the place goes on only past those that stay: a branch could not be foreseen.
        a[kept] = a[i];
        b[kept] = b[i];
        const bool isComplete = a[i] != systemMissingValue && b[i] != systemMissingValue;
        kept += isComplete ? 1 : 0;
    }
    const auto closeGap = [kept, limit](Column& column) {
        column.erase(column.begin() + static_cast<std::ptrdiff_t>(kept),
                     column.begin() + static_cast<std::ptrdiff_t>(limit));
    };
    closeGap(a);
    closeGap(b);
}

double BldatmanPairStatistics::roundToDecimals(double value, int decimals)
{
    roundAll(std::span(&value, 1), decimalFactor(decimals));
    return value;
}

}  // namespace bldatman
