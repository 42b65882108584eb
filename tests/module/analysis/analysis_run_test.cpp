#include "tests/support/command_run.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::Host;

const char* const fourColumns = "a,b,c,d;1,2,4,8;3,5,7,9;2,2,6,1";

/// The pairs in the order of their plots, each as "x-y" from its y-axis label.
std::vector<std::string> pairsOf(Host& host, const std::string& command)
{
    std::vector<std::string> pairs;
    const auto outcome = host.run(command);
    if (!outcome.delivered) {
        return pairs;
    }
    for (const auto& object : host.document()["objects"].GetArray()) {
        const std::string title = object["name"].GetString();
        const auto open = title.find('(');
        pairs.push_back(title.substr(open + 1, title.size() - open - 2));
    }
    return pairs;
}

TEST(AnalysisRun, CombinesEveryFirstVariableWithEverySecondInOrder)
{
    Host host(fourColumns);
    EXPECT_THAT(pairsOf(host, "VARIABLE=a b WITH=c d"), ElementsAre("a-c", "a-d", "b-c", "b-d"));
    EXPECT_THAT(pairsOf(host, "VARIABLE=a b WITH=a c"), ElementsAre("a-c", "b-a", "b-c"));
    EXPECT_THAT(pairsOf(host, "VARIABLE=a b c"), ElementsAre("a-b", "a-c", "b-a", "b-c", "c-a", "c-b"));
}

TEST(AnalysisRun, PairsElementByElementAndWarnsWhenTheListsDiffer)
{
    Host host(fourColumns);
    EXPECT_THAT(pairsOf(host, "VARIABLE=a b WITH=c d PAIRED=YES"), ElementsAre("a-c", "b-d"));
    EXPECT_THAT(pairsOf(host, "VARIABLE=a b c WITH=a d PAIRED=YES"), ElementsAre("b-d"));
    EXPECT_EQ(host.run("VARIABLE=a b c WITH=d PAIRED=YES").errors,
              "Warning: Data sets have different sizes. Processed up to the smallest size.\n");
    EXPECT_EQ(host.run("VARIABLE=a b c WITH=d").errors, "");
}

TEST(AnalysisRun, EndsInStepFiveWhenNoPairRemains)
{
    for (const char* command : {"VARIABLE=a b PAIRED=YES", "VARIABLE=a WITH=a"}) {
        Host host(fourColumns);
        const auto outcome = host.run(command);
        EXPECT_FALSE(outcome.delivered);
        EXPECT_EQ(outcome.errors, "bldatman_entry: Step5 Unknown error occurred.\n");
    }
    Host empty("a,b");
    EXPECT_EQ(empty.run("VARIABLE=a WITH=b").errors, "bldatman_entry: Step5 Unknown error occurred.\n");
}

rapidjson::SizeType pointsIn(const Host& host, rapidjson::SizeType graph)
{
    return host.object(graph)["data"]["xdata"].Size();
}

TEST(AnalysisRun, DropsMissingCasesPairByPairOrListwise)
{
    Host host("a,b,c,d;1,.,4,8;3,5,7,9;2,2,6,1;4,4,4,NA");
    host.run("VARIABLE=a c WITH=b d PAIRED=YES");
    EXPECT_EQ(pointsIn(host, 0), 3U);
    EXPECT_EQ(pointsIn(host, 1), 3U);
    host.run("VARIABLE=a c WITH=b d PAIRED=YES CRITERIA(SCOPE=LISTWISE)");
    EXPECT_EQ(pointsIn(host, 0), 2U);
    EXPECT_EQ(pointsIn(host, 1), 2U);
}

// Only the column pair (a, b) is looked at, so c keeps its cases and meets the shortened a up to its end.
TEST(AnalysisRun, LooksAtTheColumnPairsAloneWhenListwise)
{
    Host host("a,b,c;1,.,10;2,2,20;3,3,30");
    host.run("VARIABLE=a WITH=b c CRITERIA(SCOPE=LISTWISE) PRINT(DETAILS)");
    EXPECT_EQ(tests::json(host.object(1)["cells"]), "[[2.0,10.0,6.0,-8.0,-1.333],[3.0,20.0,11.5,-17.0,-1.478]]");
}

TEST(AnalysisRun, RefusesListwiseWithFewerColumnsInTheSecondList)
{
    Host host(fourColumns);
    const auto outcome = host.run("VARIABLE=a b WITH=c CRITERIA(SCOPE=LISTWISE)");
    EXPECT_FALSE(outcome.delivered);
    EXPECT_EQ(outcome.errors, "BLDATMAN: Standard exception: Inner vectors must have the same size\n");
}

TEST(AnalysisRun, TreatsANotANumberButNoInfinityAsMissingOnlyWhenListwise)
{
    Host host("a,b;1,2;2,3;4,4;5,6");
    host.session.dataSet.variables[0].values[1] = std::numeric_limits<double>::quiet_NaN();
    host.session.dataSet.variables[0].values[3] = -std::numeric_limits<double>::infinity();
    host.run("VARIABLE=a WITH=b PRINT(DETAILS)");
    EXPECT_EQ(tests::json(host.object(0)["cells"][1]), R"(["nan",3.0,"NaN","NaN","NaN"])");
    host.run("VARIABLE=a WITH=b CRITERIA(SCOPE=LISTWISE)");
    EXPECT_EQ(pointsIn(host, 0), 3U);
}

TEST(AnalysisRun, SortsTheRowsOfEveryPairWhenAsked)
{
    Host host(fourColumns);
    host.run("VARIABLE=a WITH=b c PRINT(DETAILS SORT(BY=DIFFERENCE DESCENDING=FALSE))");
    EXPECT_EQ(tests::json(host.object(0)["cells"]),
              "[[3.0,5.0,4.0,-2.0,-0.5],[1.0,2.0,1.5,-1.0,-0.667],[2.0,2.0,2.0,0.0,0.0]]");
    host.run("VARIABLE=a WITH=b PRINT(DETAILS SORT)");
    EXPECT_EQ(tests::json(host.object(0)["cells"][0]), "[3.0,5.0,4.0,-2.0,-0.5]");
}

TEST(AnalysisRun, EndsTheCommandWithTheErrorOfAPairAndNoOutput)
{
    Host host("a,b,c;1,2,.;2,4,5");
    const auto tooFew = host.run("VARIABLE=a WITH=b c");
    EXPECT_FALSE(tooFew.delivered);
    const std::string quantile = "BLDATMAN: Standard exception: Error in function boost::math::";
    EXPECT_EQ(tooFew.errors, quantile + "students_t_distribution<double>::students_t_distribution: Degrees of freedom "
                                        "argument is 0, but must be > 0 !\n");
    EXPECT_THAT(tests::callsOf(tooFew, {"StatJSONGenerator"}), IsEmpty());
    EXPECT_EQ(host.run("VARIABLE=a WITH=b CRITERIA(CILEVEL_MEANDIFF=100)").errors,
              quantile + "quantile(const students_t_distribution<double>&, double): Overflow Error\n");
}

}  // namespace
