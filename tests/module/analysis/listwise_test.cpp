#include "module/analysis/listwise.h"

#include "host/missing_value.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>
#include <stdexcept>

namespace bldatman {
namespace {

using Columns = std::vector<Column>;
using testing::ElementsAre;

constexpr double missing = systemMissingValue;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// The removal as it is promised, case by case from the last to the first, for every column pair.
void removeLiterally(Columns& first, Columns& second)
{
    for (std::size_t k = 0; k < first.size(); ++k) {
        for (auto i = static_cast<std::ptrdiff_t>(first[k].size()) - 1; i >= 0; --i) {
            const double a = first[k][static_cast<std::size_t>(i)];
            const double b = second[k][static_cast<std::size_t>(i)];
            if (a == missing || b == missing || std::isnan(a) || std::isnan(b)) {
                for (std::size_t j = 0; j < first.size(); ++j) {
                    first[j].erase(first[j].begin() + i);
                    second[j].erase(second[j].begin() + i);
                }
            }
        }
    }
}

TEST(Listwise, LeavesColumnsOfTheSecondListBeyondTheFirstAlone)
{
    Columns first = {{1, missing, 3}};
    Columns second = {{4, 5, 6}, {7, 8, missing}};
    removeMissingCases(first, second);
    EXPECT_THAT(first, ElementsAre(ElementsAre(1, 3)));
    EXPECT_THAT(second, ElementsAre(ElementsAre(4, 6), ElementsAre(7, 8, missing)));
}

TEST(Listwise, HasTheOutcomeOfRemovingOneByOneOnRandomData)
{
    std::mt19937 random(20);
    for (int round = 0; round < 200; ++round) {
        const std::size_t count = random() % 4 + 1;
        const std::size_t cases = round == 0 ? 20000 : random() % 12;  // more than a block holds, and few
        Columns first(count);
        Columns second(count);
        for (std::size_t k = 0; k < count; ++k) {
            for (std::size_t i = 0; i < cases; ++i) {
                first[k].push_back(random() % 6 == 0 ? missing : static_cast<double>(100 * k + i));
                second[k].push_back(random() % 6 == 0 ? notANumber : static_cast<double>(1000 + 100 * k + i));
            }
        }
        Columns expectedFirst = first;
        Columns expectedSecond = second;
        removeLiterally(expectedFirst, expectedSecond);
        removeMissingCases(first, second);
        EXPECT_EQ(first, expectedFirst);
        EXPECT_EQ(second, expectedSecond);
    }
}

TEST(Listwise, RefusesAPairOfDifferentLengthsAndAMissingPartner)
{
    const auto refused = [](Columns first, Columns second) {
        try {
            removeMissingCases(first, second);
        } catch (const std::runtime_error& error) {
            return std::string(error.what()) == "Inner vectors must have the same size";
        }
        return false;
    };
    EXPECT_TRUE(refused({{1, 2}}, {{1}}));
    EXPECT_TRUE(refused({{1}, {2}}, {{1}}));
    EXPECT_FALSE(refused({}, {{1}, {2, 3}}));
}

// Such columns arise when reading stopped within a case. The first pair is whole; the case missing there leaves the
// longer pair too, where it is long enough.
TEST(Listwise, ErasesOnlyWhereBothColumnsOfAPairAreLongEnough)
{
    Columns first = {{1, 2, missing}, {4}};
    Columns second = {{5, 6, 7}, {8}};
    removeMissingCases(first, second);
    EXPECT_THAT(first, ElementsAre(ElementsAre(1, 2), ElementsAre(4)));
    EXPECT_THAT(second, ElementsAre(ElementsAre(5, 6), ElementsAre(8)));

    first = {{missing, 1, 2, 3}, {9, 4, 5}};
    second = {{5, 6, notANumber, 7}, {9, 8}};
    EXPECT_THROW(removeMissingCases(first, second), std::runtime_error);
    EXPECT_THAT(first, ElementsAre(ElementsAre(1, 3), ElementsAre(4, 5)));
    EXPECT_THAT(second, ElementsAre(ElementsAre(6, 7), ElementsAre(8)));
}

}  // namespace
}  // namespace bldatman
