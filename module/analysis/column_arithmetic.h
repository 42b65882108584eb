// Arithmetic over the cases of columns, one operation a loop and no branch in it, so that compilers turn it into the
// wide instructions of the processor. Every case gets the very bits that the expression in the comment gives.
#pragma once

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

/// marks[i] = 1 where the value is the system-missing value or no number; others stay as they are. All of one length.
void markMissing(std::span<const double> values, std::span<double> marks);

}  // namespace bldatman
