// Arithmetic over the cases of columns, one operation a loop and no branch in it, so that compilers turn it into the
// wide instructions of the processor. Every case gets the very bits that the expression in the comment gives, but for
// which NaN it is.
#pragma once

#include "host/missing_value.h"

#include <cmath>
#include <span>

namespace bldatman {

/// means[i] = (a[i] + b[i]) * 0.5. All of one length.
void fillMeans(std::span<const double> a, std::span<const double> b, std::span<double> means);

/// differences[i] = a[i] - b[i]. All of one length.
void fillDifferences(std::span<const double> a, std::span<const double> b, std::span<double> differences);

/// ratios[i] = differences[i] / means[i] * scale, or 0 where the mean is 0. All of one length.
void fillRatios(std::span<const double> differences, std::span<const double> means, double scale,
                std::span<double> ratios);

/// values[i] = round(values[i] * factor) / factor, to the nearest integer, halves away from zero.
void roundAll(std::span<double> values, double factor);

/// True for the system-missing value and for NaN.
inline bool isMissing(double value)
{
    return value == systemMissingValue || std::isnan(value);
}

/// marks[i] = 1 where the value is missing; others stay as they are. All of one length. (Marks are as wide as values,
/// so that one loop compares and marks two at once.)
void markMissing(std::span<const double> values, std::span<double> marks);

}  // namespace bldatman
