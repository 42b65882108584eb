#include "tests/support/command_run.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using tests::Host;
using tests::json;

const char* const threeCases = "A,B;10,9;12,12;14,11";

std::vector<std::string> statements(const rapidjson::Value& graph)
{
    std::vector<std::string> texts;
    for (const auto& statement : graph["gpl"].GetArray()) {
        texts.emplace_back(statement.GetString(), statement.GetStringLength());
    }
    return texts;
}

std::vector<std::string> elements(const rapidjson::Value& graph)
{
    std::vector<std::string> texts = statements(graph);
    std::erase_if(texts, [](const std::string& text) { return !text.starts_with("ELEMENT"); });
    return texts;
}

std::string manyCases(int count)
{
    std::string csv = "A,B";
    for (int i = 0; i < count; ++i) {
        csv += ";" + std::to_string(i % 7) + "," + std::to_string(i % 5);
    }
    return csv;
}

TEST(Plots, StopDodgingAboveTenThousandPoints)
{
    Host atLimit(manyCases(10000));
    atLimit.run("VARIABLE=A WITH=B");
    EXPECT_EQ(elements(atLimit.object(0))[0], "ELEMENT: point.dodge.symmetric(position(xdata*ydata))");
    Host above(manyCases(10001));
    above.run("VARIABLE=A WITH=B PLOT(RATIO)");
    for (const rapidjson::SizeType graph : {0U, 1U}) {
        EXPECT_EQ(elements(above.object(graph))[0], "ELEMENT: point(position(xdata*ydata))");
        EXPECT_THAT(statements(above.object(graph)),
                    testing::Contains(R"gpl(GUIDE: text.subsubfootnote(label(" Note : Disabled dodge for potential )gpl"
                                      R"gpl(performance gains, Overlapping data points will be hidden")))gpl"));
    }
}

/// The columns "y1" to "y9" as one number each; both values of a column are equal.
std::vector<double> levels(const rapidjson::Value& graph)
{
    std::vector<double> values;
    for (int i = 1; i <= 9; ++i) {
        const auto& column = graph["data"][("y" + std::to_string(i)).c_str()];
        EXPECT_EQ(column.Size(), 2U);
        EXPECT_EQ(column[0], column[1]);
        values.push_back(column[0].GetDouble());
    }
    return values;
}

TEST(Plots, PutTheLimitsOfDifferencesAndRatiosIntoTheirColumns)
{
    Host host(threeCases);
    host.run("VARIABLE=A WITH=B PRINT(MEANDIFF AGREEMENT) CRITERIA(PERCENTAGE=TRUE) PLOT(RATIO)");
    const auto cell = [&host](rapidjson::SizeType table, rapidjson::SizeType row, rapidjson::SizeType column) {
        return host.object(table)["cells"][row][column].GetDouble();
    };
    // Of the tables: limits are lower, its bounds, upper, its bounds; biases are mean, lower, upper.
    EXPECT_THAT(levels(host.object(2)),
                ElementsAre(cell(1, 0, 4), cell(1, 0, 3), cell(1, 0, 5), cell(1, 0, 2), cell(1, 0, 0), cell(1, 0, 1),
                            cell(0, 0, 2), cell(0, 0, 0), cell(0, 0, 1)));
    EXPECT_THAT(levels(host.object(3)),
                ElementsAre(cell(1, 1, 5), cell(1, 1, 3), cell(1, 1, 4), cell(1, 1, 1), cell(1, 1, 0), cell(1, 1, 2),
                            cell(0, 1, 2), cell(0, 1, 0), cell(0, 1, 1)));
    EXPECT_EQ(json(host.object(3)["data"]["ydata"]), "[10.526,0.0,24.0]");
    EXPECT_EQ(json(host.object(3)["data"]["xdata"]), json(host.object(2)["data"]["xdata"]));
}

TEST(Plots, SpanTheLinesAQuarterBeyondTheMeans)
{
    Host host("A,B;1,1;3,3");
    host.run("VARIABLE=A WITH=B");
    EXPECT_EQ(json(host.object(0)["data"]["xMinMax"]), "[0.5,3.5]");
    EXPECT_EQ(json(host.object(0)["data"]["y0"]), "[0.0,0.0]");
    Host equalMeans("A,B;2,4;4,2");
    equalMeans.run("VARIABLE=A WITH=B");
    EXPECT_EQ(json(equalMeans.object(0)["data"]["xMinMax"]), "[3.0,3.0]");
}

TEST(Plots, DrawTheRatiosOfAZeroMeanAtZero)
{
    Host host("A,B;1,1;-1,-1;3,-3");
    host.run("VARIABLE=A WITH=B PLOT(RATIO)");
    EXPECT_THAT(levels(host.object(1)), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST(Plots, LabelTheLimitsInThreeWays)
{
    Host host(threeCases);
    const auto label = [&host](const std::string& limits) {
        host.run("VARIABLE=A WITH=B CRITERIA(AGREEMENT_LIMITS=" + limits + ")");
        return std::string(host.object(0)["data"]["calimits"][0].GetString());
    };
    EXPECT_EQ(label("90"), "90.00% Agreement Limit");
    EXPECT_EQ(label("TWOSD"), "2 SD Agreement");
    host.session.setLanguage("es");
    EXPECT_EQ(label("THREESD"), "3 SD Límite de Acuerdo");
    host.session.setLanguage("xx");
    EXPECT_EQ(label("TWOSD"), "^1 Agreement");
    EXPECT_EQ(label("THREESD"), "3 SD^1 Agreement Limit");
    EXPECT_EQ(label("1"), "1.00%^1 Agreement Limit");
}

}  // namespace
