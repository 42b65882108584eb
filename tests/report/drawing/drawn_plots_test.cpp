#include "report/drawing/drawn_plots.h"

#include "tests/report/documents.h"
#include "tests/support/drawing_test.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace report {
namespace {

using testing::AllOf;
using testing::FieldsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class DrawnPlotsTest : public tests::DrawingTest {};

TEST_F(DrawnPlotsTest, CanStandTogetherInAPageOrGiveTheReasonWhyTheyCannot)
{
    const std::string label = R"(GUIDE: axis(dim(1),label("across")))";
    const std::string points = "ELEMENT: point(position(x*y))";
    const auto documents =
        tests::documentsOf({{"One", tests::graph("unread", {label, "PAGE: begin()"}) + ", " +
                                        tests::graph("large", {label, points}, "1e303, -1e303, 0")},
                            {"Two", tests::graph("drawn", {label, points, "ELEMENT: line(position(y*x))",
                                                           R"(GUIDE: text.title(label("A and C")))"})}});
    std::vector<std::string> progress;
    DrawnPlots plots(documents, [&](std::size_t drawn, std::size_t total) {
        progress.push_back(std::to_string(drawn) + "/" + std::to_string(total));
    });
    const rapidjson::Value& failing = documents.front()["objects"];
    EXPECT_THAT(plots.of(failing[0]), FieldsAre("", HasSubstr("PAGE: begin(): nothing is known of"), "", ""));
    EXPECT_THAT(plots.of(failing[1]), FieldsAre("", "its values are too large for an axis", "", "across"));
    const DrawnPlot& drawn = plots.of(documents.back()["objects"][0]);
    EXPECT_THAT(drawn, FieldsAre(AllOf(StartsWith("<svg "), HasSubstr("</svg>"),
                                       HasSubstr(R"(role="img" aria-labelledby="plot-3-title")"),
                                       HasSubstr(R"(><title id="plot-3-title">A and C</title>)")),
                                 "", "A and C", "across"));
    for (const char* raw : {" id=\"g", "href", "<desc", "<defs", "<script", "<style", "black", "rgb(0,0,0)"}) {
        EXPECT_THAT(drawn.svg, Not(HasSubstr(raw)));
    }
    EXPECT_EQ(progress.back(), "3/3");
}

}  // namespace
}  // namespace report
