// What the analysis learns about one pair of measurement variables.
#pragma once

#include <string>
#include <vector>

namespace bldatman {

/// The result of one pair (A, B) over the n cases that it used; n is the length of any of the five vectors. For case i,
/// d = A - B (always first minus second) and m = (A + B) / 2; with the log transformation on, A and B are natural
/// logarithms already and nothing is transformed back.
///
/// The scalars come from unrounded values and keep full precision; the vectors hold values rounded to 3 decimals,
/// halves away from zero. Element i of every vector belongs to the same case.
struct BldatmanPairResult {
    double meanDifference;         ///< mean of d: the bias
    double sdDifference;           ///< standard deviation of d, divisor n - 1
    double meanDifferenceCiLower;  ///< confidence interval of the bias, by Student's t
    double meanDifferenceCiUpper;

    double lowerLimit;  ///< limits of agreement: bias -/+ multiplier x standard deviation
    double upperLimit;
    double lowerLimitCiLower;  ///< confidence intervals of the two limits
    double lowerLimitCiUpper;
    double upperLimitCiLower;
    double upperLimitCiUpper;

    double meanOfMeans;         ///< mean of m
    double lowerLimitRelative;  ///< the limits and their intervals divided by meanOfMeans; 0 where that is 0
    double lowerLimitCiLowerRelative;
    double lowerLimitCiUpperRelative;
    double upperLimitRelative;
    double upperLimitCiLowerRelative;
    double upperLimitCiUpperRelative;

    std::vector<double> valuesA;
    std::vector<double> valuesB;
    std::vector<double> means;
    std::vector<double> differences;
    std::vector<double> ratios;  ///< d / m, or 100 d / m when percentages are asked for; 0 where m is 0

    std::string nameA;
    std::string nameB;
};

/// A statistic relative to the mean of the means: their quotient, or 0 where that mean is exactly 0.
inline double relativeToMean(double statistic, double meanOfMeans)
{
    return meanOfMeans == 0.0 ? 0.0 : statistic / meanOfMeans;
}

/// The factor with which the output shows what is relative to the mean: 100 for percentages, else 1.
inline double ratioMultiplier(bool percentage)
{
    return percentage ? 100.0 : 1.0;
}

}  // namespace bldatman
