#include "report/plots/plot.h"

#include "report/plots/plot_error.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace report {
namespace {

using testing::ElementsAre;

/// A graph as a document has it.
class Graph {
public:
    Graph()
    {
        json_.Parse(R"gpl({"name": "g", "data": {"x": [1, 2, 3], "y": [4, 5, 6], "ends": [0, 4], "level": [5, 5],
                           "legend": ["L", "L"], "mixed": ["L", "M"]}, "gpl": []})gpl");
        for (const char* statement : {
                 R"(SOURCE: s = userSource(id("g")))",
                 R"(DATA: x = col(source(s), name("x")))",
                 R"(DATA: y = col(source(s), name("y")))",
                 R"(DATA: ends = col(source(s), name("ends")))",
                 R"(DATA: other = col(source(s), name("level")))",
                 R"(DATA: c = col(source(s), name("legend"), unit.category()))",
                 R"(DATA: m = col(source(s), name("mixed"), unit.category()))",
                 "GRAPH: begin()",
             }) {
            add(statement);
        }
    }

    Graph& add(const std::string& statement)
    {
        auto& allocator = json_.GetAllocator();
        json_["gpl"].PushBack(rapidjson::Value(statement, allocator), allocator);
        return *this;
    }

    Plot read()
    {
        add("GRAPH: end()");
        return readPlot(json_);
    }

    /// The reason why the statement cannot be followed, without the statement.
    std::string reasonAgainst(const std::string& statement)
    {
        add(statement);
        try {
            read();
        } catch (const PlotError& error) {
            const std::string reason = error.what();
            const std::string place = "statement 9, " + statement + ": ";
            return reason.starts_with(place) ? reason.substr(place.size()) : reason;
        }
        return "followed";
    }

private:
    rapidjson::Document json_;
};

TEST(Plot, ShowsWhatItsStatementsSay)
{
    const Plot plot = Graph()
                          .add(R"(GUIDE: axis(dim(2),label("up")))")
                          .add(R"(GUIDE: axis(dim(1),label("across")))")
                          .add(R"(GUIDE: text.title(label("Title")))")
                          .add("ELEMENT: point.dodge.symmetric(position(x*y))")
                          .add("ELEMENT: point(position(y*x))")
                          .add("ELEMENT: line(position(ends*other),color(c))")
                          .add("ELEMENT: line(position(ends*other), shape(shape.half_dash))")
                          .add(R"(GUIDE: text.subsubfootnote(label(" note")))")
                          .read();
    EXPECT_THAT((std::vector{plot.title, plot.xLabel, plot.yLabel, plot.footnote}),
                ElementsAre("Title", "across", "up", " note"));
    ASSERT_EQ(plot.points.size(), 2U);
    EXPECT_TRUE(plot.points[0].dodged);
    EXPECT_FALSE(plot.points[1].dodged);
    EXPECT_THAT(plot.points[1].x, ElementsAre(4, 5, 6));
    EXPECT_THAT(plot.points[1].y, ElementsAre(1, 2, 3));
    ASSERT_EQ(plot.lines.size(), 2U);
    EXPECT_THAT(plot.lines[0].x, ElementsAre(0, 4));
    EXPECT_THAT(plot.lines[0].y, ElementsAre(5, 5));
    EXPECT_EQ(plot.lines[0].legend, "L");
    EXPECT_FALSE(plot.lines[0].dashed);
    EXPECT_EQ(plot.lines[1].legend, "");
    EXPECT_TRUE(plot.lines[1].dashed);
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
        EXPECT_EQ(Graph().reasonAgainst(statement), reason) << statement;
    }
    EXPECT_EQ(Graph().add("GRAPH: end()").reasonAgainst("ELEMENT: point(position(x*y))"),
              "statement 10, ELEMENT: point(position(x*y)): an element stands outside the graph");
}

}  // namespace
}  // namespace report
