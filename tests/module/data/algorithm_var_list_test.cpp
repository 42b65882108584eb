#include "module/data/algorithm_var_list.h"

#include <gtest/gtest.h>

#include <sstream>

namespace bldatman {
namespace {

TEST(AlgorithmVarList, RefusesEmptyAndDuplicateNames)
{
    AlgorithmVarList list;
    EXPECT_EQ(list.findVariable("x"), -1);
    EXPECT_EQ(list.addContinuous("x", "label"), 0);
    EXPECT_EQ(list.addCategorical("y", "y", 3, true), 1);
    EXPECT_EQ(list.addCategorical("X", "x", 2, false), 2);
    EXPECT_EQ(list.addContinuous("", "label"), -1);
    EXPECT_EQ(list.addCategorical("x", "again", 2, true), -1);
    ASSERT_EQ(list.entries().size(), 3U);
    EXPECT_EQ(list.findVariable("X"), 2);
    EXPECT_EQ(list.entries()[0].label, "label");
    EXPECT_EQ(list.entries()[0].categoryCount, 0U);
    EXPECT_EQ(list.entries()[1].kind, kindNominal);
    EXPECT_EQ(list.entries()[2].kind, kindOrdinal);
}

TEST(AlgorithmVarList, SetsTheFrequencyWeightUncheckedAndReplacesItInPlace)
{
    AlgorithmVarList list;
    list.addCategorical("x", "x", 2, true);
    EXPECT_EQ(list.frequencyWeightIndex(), -1);
    EXPECT_EQ(list.setFrequencyWeight("x", "weight"), 1);
    EXPECT_EQ(list.setFrequencyWeight("w", "other"), 1);
    const AlgorithmVarList copy = list;  // NOLINT(performance-unnecessary-copy-initialization): copying is meant
    EXPECT_EQ(copy.entries().back().name, "w");
}

TEST(AlgorithmVarList, DisplaysKindsFallingThrough)
{
    AlgorithmVarList list;
    std::ostringstream out;
    list.addContinuous("c", "C");
    list.addCategorical("n", "N", 3, true);
    list.addCategorical("o", "O", 2, false);
    list.display(out);
    list.setFrequencyWeight("w", "W");
    list.display(out);
    const std::string entries = "Start Variable List Display\n\n"
                                "Variable 0, name c, label C, continuous\n"
                                "Variable 1, name n, label N, nominal, 3 levels, ordinal, 3 levels, continuous\n"
                                "Variable 2, name o, label O, ordinal, 2 levels, continuous\n";
    EXPECT_EQ(out.str(), entries + "Frequency Weight is not defined\n\nEnd Variable List Display\n" + entries +
                             "Variable 3, name w, label W, continuous, Frequency Weight\n"
                             "Frequency Weight Variable Index = 3\n\nEnd Variable List Display\n");
}

}  // namespace
}  // namespace bldatman
