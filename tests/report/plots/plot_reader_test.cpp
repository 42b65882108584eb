#include "report/plots/plot_reader.h"

#include "report/plots/plot_error.h"
#include "tests/report/documents.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace report {
namespace {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::ThrowsMessage;

Plot plotOf(const std::vector<std::string>& statements)
{
    return readPlot(tests::parsed(tests::graph("g", statements)));
}

TEST(Plot, ShowsWhatItsStatementsSay)
{
    const Plot plot = plotOf({R"(GUIDE: axis(dim(2),label("up")))", R"(GUIDE: axis(dim(1),label("across")))",
                              R"(GUIDE: text.title(label("Title")))", "ELEMENT: point.dodge.symmetric(position(x*y))",
                              "ELEMENT: point(position(y*x))", "ELEMENT: line(position(y*x),color(c))",
                              "ELEMENT: line(position(y*x), shape(shape.half_dash),color(d))",
                              "ELEMENT: line(position(y*x))", R"(GUIDE: text.subsubfootnote(label(" note")))"});
    EXPECT_THAT(plot, FieldsAre("Title", "across", "up", " note",
                                ElementsAre(FieldsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 6), true),
                                            FieldsAre(ElementsAre(4, 5, 6), ElementsAre(1, 2, 3), false)),
                                ElementsAre(FieldsAre(ElementsAre(4, 5, 6), ElementsAre(1, 2, 3), "L", 0, false),
                                            FieldsAre(ElementsAre(4, 5, 6), ElementsAre(1, 2, 3), "L", 1, true),
                                            FieldsAre(ElementsAre(4, 5, 6), ElementsAre(1, 2, 3), "", 0, false))));
}

TEST(Plot, SaysWhichStatementCannotBeFollowedAndWhy)
{
    for (const auto& [statement, reason] : std::vector<std::pair<std::string, std::string>>{
             {"GRAPH: begin", "a call is missing after the colon"},
             {"PAGE: begin()", R"(nothing is known of "begin" in a statement of kind "PAGE")"},
             {"ELEMENT: area(position(x*y))", R"(nothing is known of "area" in a statement of kind "ELEMENT")"},
             {"ELEMENT: point(position(x*y), size(x))", R"(nothing is known of "size" in "point")"},
             {"ELEMENT: point(position(x*y), position(x*y))", R"(nothing is known of "position" in "point")"},
             {"GRAPH: begin(x)", R"(nothing is known of "x" in "begin")"},
             {"ELEMENT: point()", R"("point" lacks "position")"},
             {"ELEMENT: point(position(x))", R"("position" takes a product)"},
             {"ELEMENT: point(position(x*y*y))", "a position has two dimensions"},
             {"ELEMENT: point(position(x*z))", R"(there is no variable "z")"},
             {"ELEMENT: point(position(x*ends))", R"("x" and "ends" differ in length)"},
             {"ELEMENT: point(position(x*c))", R"("c" is a category)"},
             {"ELEMENT: line(position(x*y),color(x))", R"("x" is not a category)"},
             {"ELEMENT: line(position(x*y),color(m))", R"("m" does not hold one text for the whole line)"},
             {"ELEMENT: line(position(x*y),shape(shape.dot))", R"(nothing is known of the shape "shape.dot")"},
             {R"(DATA: z = col(source(t), name("x")))", R"(there is no source "t")"},
             {R"(DATA: z = col(source(s), name("z")))", R"(there is no column "z")"},
             {R"(GUIDE: axis(dim(3),label("z")))", "there is no dimension 3"},
             {R"(GUIDE: axis(dim(1),label(x)))", R"("label" takes a text)"},
             {"GUIDE: axis(dim(1)", "column 19: expected \")\", found the end"}}) {
        EXPECT_THAT([&added = statement] { plotOf({added}); },
                    ThrowsMessage<PlotError>("statement 9, " + statement + ": " + reason));
    }
    EXPECT_THAT(
        [] {
            plotOf({"GRAPH: end()", "ELEMENT: point(position(x*y))"});
        },
        ThrowsMessage<PlotError>("statement 10, ELEMENT: point(position(x*y)): an element stands outside the graph"));
    EXPECT_THAT([] { readPlot(tests::parsed("{'data': {}, 'gpl': ['GRAPH: begin()']}")); },
                ThrowsMessage<PlotError>("the statements end inside the graph"));
}

}  // namespace
}  // namespace report
