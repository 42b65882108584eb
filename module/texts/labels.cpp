// The percent signs of the output differ on purpose: the details table's "Difference/Mean%" has no blank, the ratio
// rows' " %" has one, the limits' label gets its sign before substitution, and an interval's sign stands in the
// catalogue.
#include "module/texts/labels.h"

#include <array>
#include <cstdio>
#include <string_view>

namespace bldatman {

namespace {

constexpr std::string_view twoDeviations = "-2.00";
constexpr std::string_view threeDeviations = "-3.00";

}  // namespace

std::string formatLevel(double level)
{
    std::array<char, 16> text{};
    (void)std::snprintf(text.data(), text.size(), "%.2f", level);
    return text.data();
}

std::string tableLimitLabel(double agreementLimit, const BldatmanTextCatalogue& catalogue)
{
    const std::string limit = formatLevel(agreementLimit);
    if (limit == twoDeviations) {
        return catalogue.getText("^1 Agreement", "2 SD");
    }
    return catalogue.getText("^1 Agreement", limit == threeDeviations ? "3 SD" : limit + "%");
}

/// Differs from the tables' label on purpose: but for two deviations, what is to be told stands before another text,
/// whose placeholder is filled with nothing.
std::string plotLimitLabel(double agreementLimit, const BldatmanTextCatalogue& catalogue)
{
    const std::string limit = formatLevel(agreementLimit);
    if (limit == twoDeviations) {
        return catalogue.getText("^1 Agreement", "2 SD");
    }
    return (limit == threeDeviations ? "3 SD" : limit + "%") + catalogue.getText("^1 Agreement Limit");
}

std::string confidenceIntervalLabel(double level, const BldatmanTextCatalogue& catalogue)
{
    return catalogue.getText("^1 Confidence Interval", formatLevel(level));
}

std::string differenceRowLabel(const std::string& nameA, const std::string& nameB)
{
    return nameA + " - " + nameB;
}

std::string ratioRowLabel(const std::string& nameA, const std::string& nameB, bool percentage,
                          const BldatmanTextCatalogue& catalogue)
{
    const std::string label = "(" + nameA + "-" + nameB + ")/" + catalogue.getText("Mean");
    return percentage ? label + " %" : label;
}

}  // namespace bldatman
