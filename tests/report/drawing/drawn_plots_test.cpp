#include "report/drawing/drawn_plots.h"

#include "tests/support/command_run.h"
#include "tests/support/drawing_test.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace report {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using tests::Host;

class DrawnPlotsTest : public tests::DrawingTest {};

TEST_F(DrawnPlotsTest, MakesPlotsThatCanStandTogetherInAPage)
{
    Host host("A,B,C;10,9,8;12,12,11;14,11,12;12,12,10");
    host.run("VARIABLE=A WITH=B PLOT(RATIO)");
    host.run("VARIABLE=A WITH=C");
    std::vector<std::string> progress;
    DrawnPlots plots(host.session.documents, [&](std::size_t drawn, std::size_t total) {
        progress.push_back(std::to_string(drawn) + "/" + std::to_string(total));
    });
    const std::string& svg = plots.of(host.object(0)).svg;
    EXPECT_THAT(svg, StartsWith("<svg "));
    EXPECT_THAT(svg, HasSubstr(R"(role="img" aria-labelledby="plot-3-title")"));
    EXPECT_THAT(svg, HasSubstr(R"(><title id="plot-3-title">Bland-Altman Plot of Differences (A-C)</title>)"));
    for (const char* raw : {" id=\"g", "href", "<desc", "<defs", "<script", "<style", "black", "rgb(0,0,0)"}) {
        EXPECT_THAT(svg, Not(HasSubstr(raw)));
    }
    EXPECT_EQ(progress.back(), "3/3");
}

TEST_F(DrawnPlotsTest, GivesTheReasonWhereThereIsNoPlotAndDrawsTheOthers)
{
    Host host("A,\"B\"\"), f(\"\"\",C;1,2,1e303;2,5,-1e303;4,3,4");
    host.run(R"(VARIABLE=A WITH="B""), f(""" C)");
    host.run("VARIABLE=A WITH=A C");
    DrawnPlots plots(host.session.documents, [](std::size_t, std::size_t) {});
    const rapidjson::Value& objects = host.session.documents.front()["objects"];
    EXPECT_THAT(plots.of(objects[0]).reason,
                AllOf(StartsWith("statement 1, SOURCE: "), HasSubstr("nothing is known of \"f\"")));
    EXPECT_EQ(plots.of(objects[1]).reason, "its values are too large for an axis");
    EXPECT_EQ(plots.of(objects[1]).svg, "");
}

}  // namespace
}  // namespace report
