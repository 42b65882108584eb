#include "module/analysis/column_arithmetic.h"

#include <cmath>
#include <cstddef>

namespace bldatman {

namespace {

/// std::round is a call for each value, and in one C library takes the last double below a half for a half. Adding 2^52
/// leaves a double no room for a fraction, so that the addition itself rounds to an integer, whichever of the two the
/// processor is set to; the halves beside it are exact and tell whether it was the right one. From 2^52 on every double
/// is an integer. The sign of zero is kept.
double roundedHalfAwayFromZero(double value)
{
    constexpr double noFractions = 0x1p52;
    const double size = std::abs(value);
    const double whole = (size + noFractions) - noFractions;
    const double away = whole + (size >= whole + 0.5 ? 1.0 : 0.0) - (size < whole - 0.5 ? 1.0 : 0.0);
    return std::copysign(size < noFractions ? away : size, value);
}

}  // namespace

void fillMeans(std::span<const double> a, std::span<const double> b, std::span<double> means)
{
    for (std::size_t i = 0; i < means.size(); ++i) {
        means[i] = (a[i] + b[i]) * 0.5;
    }
}

void fillDifferences(std::span<const double> a, std::span<const double> b, std::span<double> differences)
{
    for (std::size_t i = 0; i < differences.size(); ++i) {
        differences[i] = a[i] - b[i];
    }
}

void fillRatios(std::span<const double> differences, std::span<const double> means, double scale,
                std::span<double> ratios)
{
    // In loops of their own: of one, a compiler may make a division by every mean, which a host that has unmasked the
    // processor's exceptions would not survive.
    for (std::size_t i = 0; i < ratios.size(); ++i) {
        ratios[i] = means[i] == 0.0 ? 1.0 : means[i];
    }
    for (std::size_t i = 0; i < ratios.size(); ++i) {
        ratios[i] = differences[i] / ratios[i] * scale;
    }
    for (std::size_t i = 0; i < ratios.size(); ++i) {
        ratios[i] = means[i] == 0.0 ? 0.0 : ratios[i];
    }
}

void roundAll(std::span<double> values, double factor)
{
    for (double& value : values) {
        value = roundedHalfAwayFromZero(value * factor) / factor;
    }
}

void markMissing(std::span<const double> values, std::span<double> marks)
{
    for (std::size_t i = 0; i < marks.size(); ++i) {
        marks[i] = isMissing(values[i]) ? 1.0 : marks[i];
    }
}

}  // namespace bldatman
