// The few numbers and names that the output turns into text itself, for tables and plots.
#pragma once

#include "module/texts/text_catalogue.h"

#include <string>

namespace bldatman {

/// "%.2f" in the C numeric locale, which the module never sets.
std::string formatLevel(double level);

/// The label of the limits of agreement in the tables: "95.00% Agreement", "2 SD Agreement", "3 SD Agreement".
///
/// @param agreementLimit  a coverage, or one of the codes of `BldatmanCriteriaSetting`: whatever prints as -2.00 counts
///                        as two standard deviations, as -3.00 as three
std::string tableLimitLabel(double agreementLimit, const BldatmanTextCatalogue& catalogue);

/// The same in the plots: "95.00% Agreement Limit", "2 SD Agreement", "3 SD Agreement Limit".
std::string plotLimitLabel(double agreementLimit, const BldatmanTextCatalogue& catalogue);

/// "95.00% Confidence Interval"; the catalogue places the level and the sign.
std::string confidenceIntervalLabel(double level, const BldatmanTextCatalogue& catalogue);

/// "A - B", with blanks.
std::string differenceRowLabel(const std::string& nameA, const std::string& nameB);

/// "(A-B)/Mean", with " %" after it for percentages; "Mean" alone is translated.
std::string ratioRowLabel(const std::string& nameA, const std::string& nameB, bool percentage,
                          const BldatmanTextCatalogue& catalogue);

}  // namespace bldatman
