#include "host/missing_value.h"
#include "module/analysis/analysis.h"
#include "tests/support/captured_errors.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace bldatman {
namespace {

using testing::ElementsAre;

constexpr double missing = systemMissingValue;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

BldatmanPairResult analyse(Column a, Column b, const BldatmanCriteriaSubcommand& criteria = {})
{
    return BldatmanAnalysis::performBlandAltmanAnalysis("a", "b", std::move(a), std::move(b),
                                                        BldatmanCriteriaSetting(criteria));
}

struct ReferencePair {
    const char* name;
    std::vector<double> a;
    std::vector<double> b;
    bool logTransform;
    const char* agreementLimits;
    double ciLevelAgreement;
    double ciLevelMeanDiff;
    std::array<double, 17> expected;
};

const std::vector<ReferencePair> referencePairs = {
#include "tests/module/analysis/reference_pairs.ipp"
};

/// A statistic and how many units in the last place it may be off the true value: on plain pairs, with logarithms,
/// whose means all but cancel, and at a level of 99.9, where the steep tail of t magnifies the rounding of (level / 100
/// + 1) / 2.
struct Figure {
    const char* name;
    double BldatmanPairResult::*value;
    double plain;
    double withLogarithms;
    double atSteepLevel;

    double bound(const ReferencePair& pair) const
    {
        if (pair.logTransform) {
            return withLogarithms;
        }
        return std::max(pair.ciLevelAgreement, pair.ciLevelMeanDiff) > 99.0 ? atSteepLevel : plain;
    }
};

using Result = BldatmanPairResult;

const std::array<Figure, 17> figures{{{"bias", &Result::meanDifference, 1, 100, 1},
                                      {"standard deviation", &Result::sdDifference, 1, 6, 1},
                                      {"bias, lower", &Result::meanDifferenceCiLower, 8, 16, 150},
                                      {"bias, upper", &Result::meanDifferenceCiUpper, 8, 16, 80},
                                      {"lower limit", &Result::lowerLimit, 1, 14, 1},
                                      {"upper limit", &Result::upperLimit, 1, 2, 1},
                                      {"lower limit, lower", &Result::lowerLimitCiLower, 8, 12, 80},
                                      {"lower limit, upper", &Result::lowerLimitCiUpper, 8, 20, 45},
                                      {"upper limit, lower", &Result::upperLimitCiLower, 8, 16, 80},
                                      {"upper limit, upper", &Result::upperLimitCiUpper, 5, 4, 45},
                                      {"mean of means", &Result::meanOfMeans, 1, 2, 1},
                                      {"lower limit / mean", &Result::lowerLimitRelative, 2, 10, 2},
                                      {"lower limit, lower / mean", &Result::lowerLimitCiLowerRelative, 6, 14, 120},
                                      {"lower limit, upper / mean", &Result::lowerLimitCiUpperRelative, 6, 24, 35},
                                      {"upper limit / mean", &Result::upperLimitRelative, 2, 3, 2},
                                      {"upper limit, lower / mean", &Result::upperLimitCiLowerRelative, 6, 12, 120},
                                      {"upper limit, upper / mean", &Result::upperLimitCiUpperRelative, 6, 5, 35}}};

double unitInTheLastPlaceOf(double value)
{
    return std::nextafter(std::abs(value), std::numeric_limits<double>::infinity()) - std::abs(value);
}

TEST(PairStatistics, AgreesWithTheHighPrecisionReference)
{
    for (const ReferencePair& pair : referencePairs) {
        BldatmanCriteriaSubcommand criteria;
        criteria.logTransform = pair.logTransform ? "TRUE" : "FALSE";
        criteria.agreementLimits = pair.agreementLimits;
        criteria.ciLevelAgreement = pair.ciLevelAgreement;
        criteria.ciLevelMeanDiff = pair.ciLevelMeanDiff;
        const BldatmanPairResult computed = analyse(pair.a, pair.b, criteria);
        for (std::size_t i = 0; i < figures.size(); ++i) {
            const double value = computed.*figures[i].value;
            const double expected = pair.expected[i];
            EXPECT_LE(std::abs(value - expected), figures[i].bound(pair) * unitInTheLastPlaceOf(expected))
                << pair.name << ", " << figures[i].name << ": " << value << " for " << expected;
        }
    }
    EXPECT_EQ(referencePairs.size(), 9U);
}

TEST(PairStatistics, DropsACaseWhenEitherValueIsTheSystemMissingOne)
{
    const auto result = analyse({1, missing, 3, 4}, {2, 2, missing, 5});
    EXPECT_THAT(result.valuesA, ElementsAre(1, 4));
    EXPECT_THAT(result.valuesB, ElementsAre(2, 5));
    EXPECT_THAT(result.differences, ElementsAre(-1, -1));
    EXPECT_EQ(result.sdDifference, 0.0);
    EXPECT_EQ(result.upperLimitCiUpper, -1.0);
}

TEST(PairStatistics, KeepsANotANumberAndWithListwiseScopeEverything)
{
    EXPECT_EQ(analyse({1, notANumber, 3}, {2, 2, 2}).differences.size(), 3U);
    BldatmanCriteriaSubcommand listwise;
    listwise.scope = "LISTWISE";
    EXPECT_EQ(analyse({1, missing, 3}, {2, 2, 2}, listwise).differences.size(), 3U);
}

TEST(PairStatistics, UsesOnlyThePositionsThatBothSeriesHave)
{
    const auto result = analyse({1, missing, 3, 4, 5}, {2, 2, 7});
    EXPECT_THAT(result.valuesA, ElementsAre(1, 3));
    EXPECT_THAT(result.valuesB, ElementsAre(2, 7));

    Column longer = {missing, 2, 3, missing, 5};
    Column shorter = {1, 2, missing};
    BldatmanAnalysis::removeMissingPairs(longer, shorter, 3);
    EXPECT_THAT(longer, ElementsAre(2, missing, 5));
    EXPECT_THAT(shorter, ElementsAre(2));
}

TEST(PairStatistics, TakesLogarithmsOfPositiveValuesOnly)
{
    BldatmanCriteriaSubcommand criteria;
    criteria.logTransform = "TRUE";
    const auto result = analyse({1, 0, -2, std::exp(1.5)}, {1, 1, 1, std::exp(0.5)}, criteria);
    EXPECT_THAT(result.valuesA, ElementsAre(0, 0, -2, 1.5));
    EXPECT_THAT(result.differences, ElementsAre(0, 0, -2, 1));
}

TEST(PairStatistics, RoundsTheVectorsHalfAwayFromZeroAndNothingElse)
{
    const auto result = analyse({0.0625, -0.0625, 1}, {0.0625, -0.0625, 0}, {});
    EXPECT_THAT(result.valuesA, ElementsAre(0.063, -0.063, 1));
    EXPECT_THAT(result.ratios, ElementsAre(0, 0, 2));
    EXPECT_EQ(result.meanDifference, 1.0 / 3.0);
    EXPECT_EQ(BldatmanAnalysis::roundToDecimals(2.675, 2), 2.68);  // 2.675 * 100 is 267.5 in doubles
    EXPECT_EQ(BldatmanAnalysis::roundToDecimals(-0.5, 0), -1.0);
}

TEST(PairStatistics, TakesTheRatioFromUnroundedValuesAndSetsItToZeroWhereTheMeanIs)
{
    BldatmanCriteriaSubcommand criteria;
    criteria.percentage = "TRUE";
    const auto result = analyse({8.5, 3, 0.0004, 3e-13}, {7.5, -3, 0.0002, -1e-13}, criteria);
    EXPECT_THAT(result.ratios, ElementsAre(12.5, 0, 66.667, 400));
    EXPECT_THAT(result.means, ElementsAre(8, 0, 0, 0));
    const auto tiny = analyse({0x1p-60, 0x3p-60}, {0, 0}, criteria);
    EXPECT_EQ(tiny.meanOfMeans, 0x1p-60);
    EXPECT_EQ(tiny.upperLimitRelative, tiny.upperLimit * 0x1p60);
}

TEST(PairStatistics, RefusesEqualNamesButNotNamesThatDifferInCase)
{
    const BldatmanCriteriaSetting criteria;
    const tests::CapturedErrors errors;
    try {
        BldatmanAnalysis::performBlandAltmanAnalysis("x", "x", {1, 2}, {2, 2}, criteria);
        FAIL() << "equal names were accepted";
    } catch (const std::invalid_argument& error) {
        EXPECT_EQ(errors.text(), std::string(error.what()) + "\n");
        EXPECT_STREQ(error.what(), "ERROR : performBlandAltmanAnalysis:- The variable names for A and B are the same. "
                                   "Exiting function.");
    }
    EXPECT_NO_THROW(BldatmanAnalysis::performBlandAltmanAnalysis("x", "X", {1, 2}, {2, 2}, criteria));
}

TEST(PairStatistics, RaisesTheQuantileLibrarysErrors)
{
    EXPECT_THROW(analyse({1}, {2}), std::domain_error);
    EXPECT_THROW(analyse({}, {}), std::domain_error);
    EXPECT_THROW(analyse({missing, 1}, {1, 2}), std::domain_error);
    BldatmanCriteriaSubcommand criteria;
    criteria.ciLevelAgreement = 100;
    EXPECT_THROW(analyse({1, 2}, {2, 2}, criteria), std::overflow_error);
}

}  // namespace
}  // namespace bldatman
