// The percent signs of the output differ on purpose: the details table's "Difference/Mean%" has no blank, the ratio
// rows' " %" has one, the agreement label gets its sign before substitution, and an interval's sign stands in the
// catalogue.
#include "module/output/labels.h"

#include "module/output/output.h"

#include <array>
#include <cstdio>

namespace bldatman {

std::string BldatmanOutput::formatLevel(double level)
{
    std::array<char, 16> text{};
    (void)std::snprintf(text.data(), text.size(), "%.2f", level);
    return text.data();
}

std::string BldatmanOutput::agreementLabel() const
{
    const std::string level = formatLevel(settings_->criteriaSetting().agreementLimit());
    switch (limitsRule(level)) {
    case LimitsRule::TwoDeviations:
        return text("^1 Agreement", "2 SD");
    case LimitsRule::ThreeDeviations:
        return text("^1 Agreement", "3 SD");
    default:
        return text("^1 Agreement", level + "%");
    }
}

std::string BldatmanOutput::confidenceIntervalLabel(double level) const
{
    return text("^1 Confidence Interval", formatLevel(level));
}

LimitsRule limitsRule(const std::string& formattedLimit)
{
    if (formattedLimit == "-2.00") {
        return LimitsRule::TwoDeviations;
    }
    return formattedLimit == "-3.00" ? LimitsRule::ThreeDeviations : LimitsRule::Coverage;
}

double ratioMultiplier(bool percentage)
{
    return percentage ? 100.0 : 1.0;
}

std::string differenceRowLabel(const std::string& nameA, const std::string& nameB)
{
    return nameA + " - " + nameB;
}

std::string ratioRowLabel(const std::string& nameA, const std::string& nameB, bool percentage,
                          const BldatmanTextCatalogue& catalogue)
{
    const std::string label = "(" + nameA + "-" + nameB + ")/" + catalogue.getText("Mean", "", "");
    return percentage ? label + " %" : label;
}

}  // namespace bldatman
