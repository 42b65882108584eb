#include "module/analysis/analysis.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace bldatman {
namespace {

using testing::ElementsAre;

/// Three cases that every key orders differently.
BldatmanPairResult threeCases()
{
    BldatmanPairResult record{};
    record.valuesA = {20, 30, 10};
    record.valuesB = {1, 2, 3};
    record.means = {3, 4, 5};
    record.differences = {0.5, -1, 2};
    record.ratios = {0.2, 0.1, 0};
    return record;
}

std::vector<double> orderOf(const std::string& key, bool descending)
{
    BldatmanPairResult record = threeCases();
    BldatmanAnalysis::sortDetails(record, key, descending);
    return record.valuesB;
}

TEST(DetailSorting, OrdersByTheVectorOfItsKeyInEitherDirection)
{
    EXPECT_THAT(orderOf("MEAN", true), ElementsAre(3, 2, 1));
    EXPECT_THAT(orderOf("RATIO", false), ElementsAre(3, 2, 1));
    EXPECT_THAT(orderOf("DIFFERENCE", false), ElementsAre(2, 1, 3));
    EXPECT_THAT(orderOf("DIFFERENCE", true), ElementsAre(3, 1, 2));
    EXPECT_THAT(orderOf("MEASUREMENT", true), ElementsAre(2, 1, 3));
}

TEST(DetailSorting, MovesAllFiveVectorsTogether)
{
    BldatmanPairResult record = threeCases();
    BldatmanAnalysis::sortDetails(record, "DIFFERENCE", false);
    EXPECT_THAT(record.valuesA, ElementsAre(30, 20, 10));
    EXPECT_THAT(record.means, ElementsAre(4, 3, 5));
    EXPECT_THAT(record.differences, ElementsAre(-1, 0.5, 2));
    EXPECT_THAT(record.ratios, ElementsAre(0.1, 0.2, 0));
}

TEST(DetailSorting, PutsWhatIsNoNumberLastAndKeepsCaseOrderWithinEquals)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const bool descending : {false, true}) {
        BldatmanPairResult record{};
        for (int i = 0; i < 200; ++i) {
            record.means.push_back(i % 3 == 0 ? nan : i % 2);
            record.valuesA.push_back(i);
        }
        record.valuesB = record.differences = record.ratios = record.valuesA;
        BldatmanAnalysis::sortDetails(record, "MEAN", descending);
        for (std::size_t i = 1; i < record.means.size(); ++i) {
            const double before = record.means[i - 1];
            const double here = record.means[i];
            EXPECT_FALSE(std::isnan(before) && !std::isnan(here));
            EXPECT_FALSE(descending ? before < here : before > here);
            const bool tied = before == here || (std::isnan(before) && std::isnan(here));
            EXPECT_TRUE(!tied || record.valuesA[i - 1] < record.valuesA[i]);
        }
    }
}

std::string refusalOf(BldatmanPairResult record, const std::string& key)
{
    try {
        BldatmanAnalysis::sortDetails(record, key, false);
    } catch (const std::invalid_argument& error) {
        return std::string("invalid argument: ") + error.what();
    } catch (const std::runtime_error& error) {
        return std::string("runtime error: ") + error.what();
    }
    return "";
}

TEST(DetailSorting, RefusesUnknownKeysEmptyRecordsAndVectorsOfDifferentLengths)
{
    for (const std::string key :
         {"", "CASE", "E", "MEAM", "MEASUREMENT ", "N", "SORT", "mean"}) {  // around the known ones
        EXPECT_EQ(refusalOf(threeCases(), key), "invalid argument: Invalid sort key: " + key);
    }
    EXPECT_EQ(refusalOf({}, "MEAN"), "invalid argument: The selected vector for sorting is empty.");
    BldatmanPairResult uneven = threeCases();
    for (const std::size_t length : {2U, 4U}) {
        uneven.ratios.resize(length);
        EXPECT_EQ(refusalOf(uneven, "MEAN"), "runtime error: Mismatch in vector sizes within the result structure.");
    }
}

}  // namespace
}  // namespace bldatman
