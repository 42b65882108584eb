// Reads and writes numbers, the same in every locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace text {

/// The number that the whole text spells as C reads it: an optional sign, decimal digits with an optional fraction
/// ("1.", ".5"), an optional exponent. Nothing for any other text, blanks, hexadecimal, "inf" and "nan" among them, and
/// nothing for a number too large for a double; one too small becomes a denormal or zero.
///
/// @param decimalMark  stands before the fraction; with another mark than '.', a '.' makes the text no number
std::optional<double> readNumber(std::string_view text, char decimalMark = '.');

/// A number with so many decimals; what is not finite as "NaN", "Infinity" or "-Infinity".
std::string formatFixed(double number, int decimals);

}  // namespace text
