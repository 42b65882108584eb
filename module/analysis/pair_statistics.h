// The statistics of one pair.
#pragma once

#include "module/analysis/pair_result.h"
#include "module/column.h"
#include "module/settings/setting_records.h"

#include <cstddef>
#include <string>
#include <vector>

namespace bldatman {

class BldatmanPairStatistics {
public:
    /// The record of one pair. Promises, which the source cites:
    ///
    ///  1. Names that are equal byte for byte are refused: a line on the standard error stream, then
    ///     std::invalid_argument with the same text.
    ///  2. With scope "ANALYSIS" every case is dropped in which either value is exactly the system-missing value; a NaN
    ///     is kept. With any other scope nothing is dropped. Cases beyond the shorter series are not used.
    ///  3. With the log transformation positive values become natural logarithms; others stay as they are.
    ///  4. Sums are plain left-to-right sums in double precision. The standard deviation has the divisor n - 1.
    ///  5. The bias has the interval bias -/+ t sd / sqrt(n), t with n - 1 degrees of freedom.
    ///  6. The limits of agreement are bias -/+ z sd, z from `agreementMultiplier`; each has the interval -/+ w with
    ///     w = t sd sqrt(z^2 / (2 (n - 1)) + 1 / n), the formula of Bland and Altman (Stat Methods Med Res 1999) for
    ///     any z.
    ///  7. The relative limits are the limits divided by the mean of the means, or all 0 where that is 0.
    ///  8. The vectors are rounded to 3 decimals, the ratio from unrounded values; a mean of 0 gives the ratio 0.
    ///
    /// @throws std::domain_error  from the quantile library: fewer than two cases, a level outside [-100, 100]
    /// @throws std::overflow_error  likewise: a level of 100
    static BldatmanPairResult performBlandAltmanAnalysis(const std::string& nameA, const std::string& nameB, Column a,
                                                         Column b, const BldatmanCriteriaSetting& criteria);

    /// The sum in index order divided by the count; NaN for no values.
    static double computeMean(const std::vector<double>& values);

    /// The square root of the sum of squared deviations, in index order, divided by count - 1.
    static double computeSD(const std::vector<double>& values, double mean);

    /// z for a limits rule: 1.96 for 95 and 2.576 for 99 (fixed on purpose, not the quantiles), 2 and 3 for the two
    /// codes, otherwise the standard normal quantile at (coverage / 100 + 1) / 2.
    static double agreementMultiplier(double agreementLimit);

    /// Student's t quantile at (fraction + 1) / 2.
    static double tQuantile(double fraction, int degreesOfFreedom);

    /// Removes from both series each of the first `limit` positions at which either is the system-missing value; what
    /// lies behind moves down.
    static void removeMissingPairs(Column& a, Column& b, std::size_t limit);

    /// The value rounded to so many decimals, halves away from zero.
    static double roundToDecimals(double value, int decimals);
};

}  // namespace bldatman
