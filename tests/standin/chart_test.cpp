#include "standin/drawing/chart.h"
#include "standin/drawing/gnuplot_script.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace standin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

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

    Chart read()
    {
        add("GRAPH: end()");
        return readChart(json_);
    }

    /// The reason why the statement cannot be followed, without the statement.
    std::string reasonAgainst(const std::string& statement)
    {
        add(statement);
        try {
            read();
        } catch (const ChartError& error) {
            const std::string reason = error.what();
            const std::string place = "statement 9, " + statement + ": ";
            return reason.starts_with(place) ? reason.substr(place.size()) : reason;
        }
        return "followed";
    }

private:
    rapidjson::Document json_;
};

TEST(Chart, ShowsWhatItsStatementsSay)
{
    const Chart chart = Graph()
                            .add(R"(GUIDE: axis(dim(2),label("up")))")
                            .add(R"(GUIDE: axis(dim(1),label("across")))")
                            .add(R"(GUIDE: text.title(label("Title")))")
                            .add("ELEMENT: point.dodge.symmetric(position(x*y))")
                            .add("ELEMENT: point(position(y*x))")
                            .add("ELEMENT: line(position(ends*other),color(c))")
                            .add("ELEMENT: line(position(ends*other), shape(shape.half_dash))")
                            .add(R"(GUIDE: text.subsubfootnote(label(" note")))")
                            .read();
    EXPECT_THAT((std::vector{chart.title, chart.xLabel, chart.yLabel, chart.footnote}),
                ElementsAre("Title", "across", "up", " note"));
    ASSERT_EQ(chart.points.size(), 2U);
    EXPECT_TRUE(chart.points[0].dodged);
    EXPECT_FALSE(chart.points[1].dodged);
    EXPECT_THAT(chart.points[1].x, ElementsAre(4, 5, 6));
    EXPECT_THAT(chart.points[1].y, ElementsAre(1, 2, 3));
    ASSERT_EQ(chart.lines.size(), 2U);
    EXPECT_THAT(chart.lines[0].x, ElementsAre(0, 4));
    EXPECT_THAT(chart.lines[0].y, ElementsAre(5, 5));
    EXPECT_EQ(chart.lines[0].legend, "L");
    EXPECT_FALSE(chart.lines[0].dashed);
    EXPECT_EQ(chart.lines[1].legend, "");
    EXPECT_TRUE(chart.lines[1].dashed);
}

TEST(Chart, SaysWhichStatementCannotBeFollowedAndWhy)
{
    for (const auto& [statement, reason] : std::vector<std::pair<std::string, std::string>>{
             {"GRAPH: begin", "a call is missing after the colon"},
             {"PAGE: begin()", R"(nothing is known of "begin" in a statement of kind "PAGE")"},
             {"ELEMENT: area(position(x*y))", R"(nothing is known of "area" in a statement of kind "ELEMENT")"},
             {"ELEMENT: point(position(x*y), size(x))", R"(nothing is known of "size" in "point")"},
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

TEST(GnuplotScript, GivesGnuplotNothingToRunOrToInterpret)
{
    Chart chart;
    chart.title = chart.xLabel = chart.yLabel = chart.footnote = "`id` $(id) \"\n id\n!id\n@x {/=9 a}_b^c %d \\n 'q' 95.00";
    chart.lines.push_back({{0, 1}, {1, 1}, chart.title, false});
    const std::string script = gnuplotScript(chart);
    EXPECT_THAT(script, Not(HasSubstr("\nid")));
    for (const char* raw : {"`", "$(", "!", "@x", "{", "^", "\\n", "'q'", "\\0569"}) {
        EXPECT_THAT(script, Not(HasSubstr(raw)));
    }
    EXPECT_THAT(script, HasSubstr(R"(\071\065\056\060\060)"));
}

TEST(GnuplotScript, LeavesOutWhatIsNotFinite)
{
    Chart chart;
    chart.points.push_back({{1, notANumber, 3, infinity, 5}, {1, 2, -infinity, 4, 5}, true});
    chart.lines.push_back({{0, 6}, {notANumber, notANumber}, "none", false});
    const std::string script = gnuplotScript(chart);
    EXPECT_THAT(script, HasSubstr("<< END\n1 1\n5 5\nEND\n"));
    EXPECT_THAT(script, Not(HasSubstr("$layer1")));
    EXPECT_THAT(script, HasSubstr("nohead"));  // its place in the legend is still there
}

TEST(GnuplotScript, ChoosesAxesThatShowEverything)
{
    const auto axes = [](const std::vector<double>& x, const std::vector<double>& y) {
        Chart chart;
        chart.points.push_back({x, y, true});
        const std::string script = gnuplotScript(chart);
        const std::size_t begin = script.find("set xrange");
        return script.substr(begin, script.find("set border") - begin);
    };
    EXPECT_EQ(axes({0, 100}, {-1, 1}), "set xrange [-5:105]\nset yrange [-1.1:1.1]\n");
    EXPECT_EQ(axes({50, 50}, {0, 0}), "set xrange [45:55]\nset yrange [-1:1]\n");
    EXPECT_EQ(axes({}, {}), "set xrange [-1:1]\nset yrange [-1:1]\n");
    EXPECT_THAT(axes({8, std::nextafter(8, 9)}, {notANumber, 2}), HasSubstr("[7."));
    EXPECT_THROW(axes({1, 2}, {-1.7e308, 1.7e308}), ChartError);
}

TEST(GnuplotScript, DrawsAcrossALevelThatWouldBeTooShortToSee)
{
    Chart chart;
    chart.points.push_back({{5, 5}, {1, 2}, true});
    chart.lines.push_back({{5, 5}, {1.5, 1.5}, "level", false});
    EXPECT_THAT(gnuplotScript(chart), HasSubstr("4.5 1.5\n5.5 1.5\n"));
}

TEST(GnuplotScript, DrawsUndodgedPointsOfOnePlaceOnce)
{
    Chart chart;
    chart.points.push_back({{0, 500, 500.0001, 1000}, {0, 500, 500, 1000}, false});
    EXPECT_THAT(gnuplotScript(chart), HasSubstr("0 0\n500 500\n1000 1000\nEND"));
    chart.points[0].dodged = true;
    EXPECT_THAT(gnuplotScript(chart), HasSubstr("0 0\n500 500\n500.0001 500\n1000 1000\nEND"));
}

}  // namespace
}  // namespace standin
