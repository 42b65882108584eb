#include "tests/support/command_run.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using tests::callsOf;
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

TEST(OutputChart, WritesItsStatementsToTheCharacter)
{
    Host host(threeCases);
    host.run("VARIABLE=A WITH=B PLOT(REFLINE AGREEMENT_LIMITS)");
    std::vector<std::string> expected = {
        R"gpl(SOURCE: s = userSource(id("Bland-Altman Plot of Differences (A-B)")))gpl"};
    for (const std::string name :
         {"xdata", "ydata", "xMinMax", "y0", "y1", "y2", "y3", "y4", "y5", "y6", "y7", "y8", "y9"}) {
        expected.push_back("DATA: " + name + R"gpl( = col(source(s), name(")gpl" + name + R"gpl(")))gpl");
    }
    for (const std::string name : {"cref", "calimits", "cmean", "cMeanDiffCI", "crefALimitsCI"}) {
        expected.push_back("DATA: " + name + R"gpl( = col(source(s), name(")gpl" + name +
                           R"gpl("), unit.category()))gpl");
    }
    expected.insert(
        expected.end(),
        {"GRAPH: begin()", R"gpl(GUIDE: axis(dim(2),label("A-B")))gpl",
         R"gpl(GUIDE: axis(dim(1),label("Mean of A and B")))gpl",
         R"gpl(GUIDE: text.title(label("Bland-Altman Plot of Differences (A-B)")))gpl",
         "ELEMENT: point.dodge.symmetric(position(xdata*ydata))", "ELEMENT: line(position(xMinMax*y0),color(cref))",
         "ELEMENT: line(position(xMinMax*y2),color(calimits))", "ELEMENT: line(position(xMinMax*y5),color(calimits))",
         "ELEMENT: line(position(xMinMax*y8),color(cmean))",
         R"gpl(GUIDE: text.subsubfootnote(label(" Overlapping points are displayed using dodge to enhance )gpl"
         R"gpl(visibility.")))gpl",
         "GRAPH: end()"});
    EXPECT_THAT(statements(host.object(0)), ElementsAreArray(expected));
}

TEST(OutputChart, DrawsTheLinesThatTheFlagsAskForInTheirOrder)
{
    Host host(threeCases);
    host.run("VARIABLE=A WITH=B PLOT(REFLINE AGREEMENT_LIMITS=CI CI_MEANDIFF)");
    const auto line = [](const std::string& y, const std::string& color, bool dashed) {
        return "ELEMENT: line(position(xMinMax*" + y + "),color(" + color + ")" +
               (dashed ? ", shape(shape.half_dash))" : ")");
    };
    auto drawn = elements(host.object(0));
    drawn.erase(drawn.begin());
    EXPECT_THAT(drawn, ElementsAre(line("y0", "cref", false), line("y2", "calimits", false),
                                   line("y1", "crefALimitsCI", true), line("y3", "crefALimitsCI", true),
                                   line("y5", "calimits", false), line("y4", "crefALimitsCI", true),
                                   line("y6", "crefALimitsCI", true), line("y8", "cmean", false),
                                   line("y7", "cMeanDiffCI", true), line("y9", "cMeanDiffCI", true)));
    host.run("VARIABLE=A WITH=B");
    EXPECT_EQ(elements(host.object(0)).size(), 2U);
}

TEST(OutputChart, InsertsTextsUnescaped)
{
    Host host(R"("a""b\",B;10,9;12,12)");
    host.run(R"(VARIABLE="a""b\" WITH=B)");
    EXPECT_EQ(statements(host.object(0))[0],
              R"gpl(SOURCE: s = userSource(id("Bland-Altman Plot of Differences (a"b\-B)")))gpl");
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

TEST(Plots, HandEveryColumnOverInOrderForBothPlots)
{
    Host host(threeCases);
    const auto calls = callsOf(host.run("VARIABLE=A WITH=B PLOT(RATIO)"), {"StatGPLGraph::"});
    std::vector<std::string> expected;
    for (const std::string title : {"Bland-Altman Plot of Differences (A-B)", "Bland-Altman Plot of Ratios (A-B)"}) {
        expected.insert(expected.end(),
                        {"StatGPLGraph::StatGPLGraph [\"" + title + "\"]", "StatGPLGraph::setDataVector [3,true]",
                         "StatGPLGraph::setDataVector [3,false]"});
        for (const std::string column : {"xMinMax", "y0", "y1", "y2", "y3", "y4", "y5", "y6", "y7", "y8", "y9", "cref",
                                         "calimits", "cmean", "cMeanDiffCI", "crefALimitsCI"}) {
            expected.push_back("StatGPLGraph::addToDataVector [2,\"" + column + "\"]");
        }
        expected.insert(expected.end(), {"StatGPLGraph::addGPLGraphToProcedureJSON []", "StatGPLGraph::getName []",
                                         "StatGPLGraph::getName []", "StatGPLGraph::~StatGPLGraph []"});
    }
    EXPECT_THAT(calls, ElementsAreArray(expected));
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

/// The texts of the legend columns, and of the axes.
std::vector<std::string> texts(const rapidjson::Value& graph)
{
    std::vector<std::string> found;
    for (const char* column : {"cref", "calimits", "cmean", "cMeanDiffCI", "crefALimitsCI"}) {
        const auto& values = graph["data"][column];
        EXPECT_EQ(values.Size(), 2U);
        EXPECT_EQ(values[0], values[1]);
        found.emplace_back(values[0].GetString());
    }
    found.push_back(statements(graph)[20]);
    found.push_back(statements(graph)[21]);
    return found;
}

TEST(Plots, NameTheirLinesAndAxes)
{
    Host host(threeCases);
    host.run("VARIABLE=A WITH=B PLOT(RATIO) CRITERIA(AGREEMENT_LIMITS=THREESD CILEVEL_AGREEMENT=99)");
    EXPECT_THAT(texts(host.object(0)),
                ElementsAre("Reference line at 0.", "3 SD Agreement Limit", "Mean Difference",
                            "Confidence interval of Mean Difference", "99.00% Confidence intervals of Agreement Limits",
                            R"gpl(GUIDE: axis(dim(2),label("A-B")))gpl",
                            R"gpl(GUIDE: axis(dim(1),label("Mean of A and B")))gpl"));
    EXPECT_THAT(texts(host.object(1)),
                ElementsAre("Reference line at 0.", "3 SD Agreement Limit", "Mean Difference in ratio",
                            "Confidence interval of Mean Difference in ratio",
                            "99.00% Confidence intervals of Agreement Limits",
                            R"gpl(GUIDE: axis(dim(2),label("(A-B)/Mean")))gpl",
                            R"gpl(GUIDE: axis(dim(1),label("Mean of A and B")))gpl"));
    host.run("VARIABLE=A WITH=B PLOT(RATIO) CRITERIA(PERCENTAGE=TRUE)");
    EXPECT_THAT(texts(host.object(1)),
                ElementsAre("Reference line at 0.", "95.00% Agreement Limit", "Mean Difference in percentage",
                            "Confidence interval of Mean Difference in percentage",
                            "95.00% Confidence intervals of Agreement Limits",
                            R"gpl(GUIDE: axis(dim(2),label("(A-B)/Mean %")))gpl",
                            R"gpl(GUIDE: axis(dim(1),label("Mean of A and B")))gpl"));
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
