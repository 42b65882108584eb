#include "tests/support/command_run.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using testing::ElementsAre;
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

rapidjson::SizeType pointsIn(const Host& host, rapidjson::SizeType graph)
{
    return host.object(graph)["data"]["xdata"].Size();
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

}  // namespace
