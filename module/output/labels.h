// The few numbers and names that the tables turn into text themselves.
#pragma once

#include "module/texts/text_catalogue.h"

#include <string>

namespace bldatman {

/// How the limits of agreement are defined, told from the printed form of their setting: whatever prints as -2.00
/// counts as two standard deviations, as -3.00 as three.
enum class LimitsRule { Coverage, TwoDeviations, ThreeDeviations };

LimitsRule limitsRule(const std::string& formattedLimit);

/// The factor of ratios: 100 for percentages, else 1.
double ratioMultiplier(bool percentage);

/// "A - B", with blanks.
std::string differenceRowLabel(const std::string& nameA, const std::string& nameB);

/// "(A-B)/Mean", with " %" after it for percentages; "Mean" alone is translated.
std::string ratioRowLabel(const std::string& nameA, const std::string& nameB, bool percentage,
                          const BldatmanTextCatalogue& catalogue);

}  // namespace bldatman
