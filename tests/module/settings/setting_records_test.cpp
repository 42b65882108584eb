#include "module/settings/setting_records.h"

#include <gtest/gtest.h>

namespace bldatman {
namespace {

TEST(SettingRecords, KeepTheInitialValuesOfACommandWithoutSubcommands)
{
    const BldatmanCriteriaSetting criteria{BldatmanCriteriaSubcommand{}};
    EXPECT_EQ(criteria.scope(), "ANALYSIS");
    EXPECT_EQ(criteria.classMissing(), "EXCLUDE");
    EXPECT_FALSE(criteria.logTransform() || criteria.percentage());
    EXPECT_EQ(criteria.agreementLimit(), 95.0);
    EXPECT_EQ(criteria.ciLevelAgreement(), 95.0);
    EXPECT_EQ(criteria.ciLevelMeanDiff(), 95.0);

    EXPECT_EQ(BldatmanPrintSubcommand{}.meanDiff, "FLASE");
    const BldatmanPrintSetting print{BldatmanPrintSubcommand{}};
    EXPECT_FALSE(print.details() || print.printAgreement() || print.printMeanDiff() || print.printPercentage());
    EXPECT_EQ(print.rows(), 10);
    EXPECT_EQ(print.sortBy(), "MEASUREMENT");
    EXPECT_EQ(print.sortOrder(), BldatmanPrintSetting::unsorted);
}

TEST(SettingRecords, SetAFlagForExactlyTrue)
{
    for (const char* text : {"true", "TRUE ", "YES", "1", ""}) {
        BldatmanCriteriaSubcommand raw;
        raw.logTransform = raw.percentage = text;
        const BldatmanCriteriaSetting criteria(raw);
        EXPECT_FALSE(criteria.logTransform() || criteria.percentage()) << text;
        BldatmanVariableSubcommand variables;
        variables.paired = text == std::string("YES") ? "Yes" : text;
        EXPECT_FALSE(BldatmanVariableSetting(variables).paired()) << text;
    }
    BldatmanPrintSubcommand raw;
    raw.details = raw.agreement = raw.meanDiff = "TRUE";
    const BldatmanPrintSetting print(raw);
    EXPECT_TRUE(print.details() && print.printAgreement() && print.printMeanDiff());
}

TEST(SettingRecords, InvertThePrintPercentageFlag)
{
    BldatmanPrintSubcommand raw;
    raw.percentage = "FALSE";
    EXPECT_TRUE(BldatmanPrintSetting(raw).printPercentage());
}

TEST(SettingRecords, ReadTheLimitsRuleAsCodeOrLeadingNumber)
{
    const auto limitOf = [](const char* text) {
        BldatmanCriteriaSubcommand raw;
        raw.agreementLimits = text;
        return BldatmanCriteriaSetting(raw).agreementLimit();
    };
    EXPECT_EQ(limitOf("TWOSD"), -2.0);
    EXPECT_EQ(limitOf("THREESD"), -3.0);
    EXPECT_EQ(limitOf("90"), 90.0);
    EXPECT_EQ(limitOf("12 percent"), 12.0);
    EXPECT_EQ(limitOf("twosd"), 0.0);
}

TEST(SettingRecords, SortAscendingForAnyTextButTrueAndNa)
{
    const auto orderOf = [](const char* text) {
        BldatmanPrintSubcommand raw;
        raw.descending = text;
        return BldatmanPrintSetting(raw).sortOrder();
    };
    EXPECT_EQ(orderOf("TRUE"), 0);
    EXPECT_EQ(orderOf("FALSE"), 1);
    EXPECT_EQ(orderOf("NA"), 2);
    EXPECT_EQ(orderOf(""), 1);
}

}  // namespace
}  // namespace bldatman
