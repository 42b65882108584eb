// Pictures of graphs, and the page that shows them, over documents of whole commands.
#include "standin/drawing/picture_book.h"
#include "standin/render/header_rows.h"
#include "standin/render/render_html.h"

#include "tests/support/command_run.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace standin {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using tests::Host;

const char* const fourCases = "A,B,C;10,9,8;12,12,11;14,11,12;12,12,10";

/// All that a pattern's first group matches, in order.
std::vector<std::string> allOf(const std::string& text, const std::string& pattern)
{
    const std::regex regex(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match) {
        found.push_back((*match)[1]);
    }
    return found;
}

std::string pageOf(const Session& session)
{
    PictureBook pictures(session.documents);
    return renderHtml({session.documents, session.languageCode, pictures});
}

std::string pageOf(const std::string& csv, const std::string& command, const std::string& language = "en")
{
    Host host(csv);
    host.session.setLanguage(language);
    host.run(command);
    return pageOf(host.session);
}

/// Programs are looked up in an empty place while it lives.
class NoPrograms {
public:
    NoPrograms()
        : path_(std::getenv("PATH"))
    {
        setenv("PATH", "/nonexistent", 1);
    }
    ~NoPrograms() { setenv("PATH", path_.c_str(), 1); }
    NoPrograms(const NoPrograms&) = delete;
    NoPrograms& operator=(const NoPrograms&) = delete;

private:
    std::string path_;
};

std::vector<double> numbersOf(const std::vector<std::string>& texts)
{
    std::vector<double> numbers;
    for (const std::string& text : texts) {
        numbers.push_back(std::stod(text));
    }
    return numbers;
}

/// Heights in a picture grow downwards, by the same for each unit of what they show. They have two decimals.
void expectOneScale(const std::vector<double>& heights, const std::vector<double>& values)
{
    ASSERT_EQ(heights.size(), values.size());
    const auto [least, largest] = std::ranges::minmax_element(values);
    const auto heightOf = [&](auto place) { return heights[static_cast<std::size_t>(place - values.begin())]; };
    const double unit = (heightOf(least) - heightOf(largest)) / (*largest - *least);
    EXPECT_GT(unit, 0.0);
    for (std::size_t i = 0; i < values.size(); ++i) {
        EXPECT_NEAR(heights[i], heightOf(least) - unit * (values[i] - *least), 0.021) << i;
    }
}

TEST(PictureBook, DrawsWhatTheStatementsAskFor)
{
    Host host(fourCases);
    host.run("VARIABLE=A WITH=B PLOT(RATIO REFLINE AGREEMENT_LIMITS=CI CI_MEANDIFF)");
    PictureBook book(host.session.documents);
    ASSERT_EQ(book.pictures().front().size(), 2U);
    const std::string& svg = book.pictures().front()[0].svg;

    // The points, of which two coincide and stand apart at one height, and the lines in the order of the statements.
    const rapidjson::Value& data = host.object(0)["data"];
    std::vector<double> values;
    for (const auto& value : data["ydata"].GetArray()) {
        values.push_back(value.GetDouble());
    }
    for (const char* level : {"y0", "y2", "y1", "y3", "y5", "y4", "y6", "y8", "y7", "y9"}) {
        values.push_back(data[level][0].GetDouble());
    }
    std::vector<double> heights = numbersOf(allOf(svg, R"re(<circle cx="[\d.]+" cy="([\d.]+)")re"));
    const std::vector<double> lines =
        numbersOf(allOf(svg, R"re(<path stroke="rgb[^>]*d="M[\d.]+,([\d.]+) L599\.99,)re"));
    std::ranges::sort(heights, std::greater<>());
    std::sort(values.begin(), values.begin() + 4);
    heights.insert(heights.end(), lines.begin(), lines.end());
    expectOneScale(heights, values);
    const std::vector<std::string> places = allOf(svg, R"re(<circle cx="([\d.]+)" )re");
    EXPECT_EQ(std::set(places.begin(), places.end()).size(), 4U);

    // Of the ten lines six are dashed, of the five entries of the legend two.
    EXPECT_EQ(allOf(svg, "stroke-dasharray=(\"7)").size(), 8U);
    for (const char* text : {"Bland-Altman Plot of Differences (A-B)", "A-B", "Mean of A and B", "Reference line at 0.",
                             "95.00% Agreement Limit", "95.00% Confidence intervals of Agreement Limits",
                             "Mean Difference", "Confidence interval of Mean Difference",
                             "Overlapping points are displayed using dodge to enhance visibility."}) {
        EXPECT_THAT(svg, HasSubstr(">" + std::string(text) + "<"));
    }
}

TEST(PictureBook, MakesPicturesThatCanStandTogetherInAPage)
{
    Host host(fourCases);
    host.run("VARIABLE=A WITH=B PLOT(RATIO)");
    host.run("VARIABLE=A WITH=C");
    std::vector<std::string> progress;
    PictureBook book(host.session.documents, [&](std::size_t drawn, std::size_t total) {
        progress.push_back(std::to_string(drawn) + "/" + std::to_string(total));
    });
    ASSERT_EQ(book.pictures().size(), 2U);
    const std::string& last = book.pictures().back()[0].svg;
    EXPECT_THAT(last, HasSubstr(R"(role="img" aria-labelledby="plot-3-title")"));
    EXPECT_THAT(last, HasSubstr(R"(<title id="plot-3-title">Bland-Altman Plot of Differences (A-C)</title>)"));
    EXPECT_THAT(allOf(last, "[ <](id|href|desc|defs|script|style)[= >]"), ElementsAre("id"));
    EXPECT_THAT(last, Not(HasSubstr("black")));
    EXPECT_EQ(progress.back(), "3/3");
}

TEST(PictureBook, GivesTheReasonWhereThereIsNoPictureAndDrawsTheOthers)
{
    Host host("A,\"B\"\"), f(\"\"\",C;1,2,1e303;2,5,-1e303;4,3,4");
    host.run(R"(VARIABLE=A WITH="B""), f(""" C A)");
    host.run("VARIABLE=C WITH=A");
    PictureBook book(host.session.documents);
    const auto& first = book.pictures().front();
    EXPECT_THAT(first[0].reason,
                AllOf(testing::StartsWith("statement 1, SOURCE: "), HasSubstr("nothing is known of \"f\"")));
    EXPECT_EQ(first[1].reason, "its values are too large for an axis");
    EXPECT_EQ(book.pictures().back()[0].reason, first[1].reason);

    const NoPrograms none;
    Host other(fourCases);
    other.run("VARIABLE=A WITH=B");
    PictureBook withoutGnuplot(other.session.documents);
    EXPECT_EQ(withoutGnuplot.pictures().front()[0].reason, "gnuplot is not installed");
    EXPECT_EQ(withoutGnuplot.pictures().front()[0].svg, "");
    EXPECT_THAT(pageOf(other.session), HasSubstr("This plot cannot be drawn: gnuplot is not installed."));
}

TEST(HeaderRows, SpanColumnsUnderGroupsAndRowsWithoutThem)
{
    const auto shape = [](const TableGrid& grid) {
        std::vector<std::string> rows;
        for (const auto& row : headerRowsOf(grid)) {
            std::string& text = rows.emplace_back();
            for (const HeaderCell& cell : row) {
                text += "[" + cell.text + " " + std::to_string(cell.columnCount) + "x" + std::to_string(cell.rowCount) +
                        "]";
            }
        }
        return rows;
    };
    TableGrid grid;
    grid.columnHeaders = {"a", "b", "c", "d"};
    EXPECT_THAT(shape(grid), ElementsAre("[ 1x1][a 1x1][b 1x1][c 1x1][d 1x1]"));
    grid.groupRows = {{{"G", 1, 2}}};
    grid.rowsLabel = "rows";
    EXPECT_THAT(shape(grid), ElementsAre("[rows 1x2][a 1x2][G 2x1][d 1x2]", "[b 1x1][c 1x1]"));
    grid.groupRows = {{{"G", 1, 2}}, {{"H", 2, 2}}};
    EXPECT_THAT(shape(grid), ElementsAre("[rows 1x3][a 1x3][G 2x1][ 1x1]", "[b 1x2][H 2x1]", "[c 1x1][d 1x1]"));
}

TEST(Html, HoldsEveryTableAndPlotOfTheDocument)
{
    const std::string page = pageOf(fourCases,
                                    "VARIABLE=A WITH=B CRITERIA(LOGTRANSFORM=TRUE) PRINT(DETAILS ROWS=2 "
                                    "SORT MEANDIFF AGREEMENT) PLOT(RATIO)",
                                    "pt-BR");
    EXPECT_THAT(page, testing::StartsWith("<!DOCTYPE html>\n<html lang=\"pt-BR\">"));
    EXPECT_EQ(allOf(page, "(<caption>)").size(), 3U);
    EXPECT_EQ(allOf(page, "(<figure)").size(), 2U);
    EXPECT_THAT(page, HasSubstr(R"(<title>Análise Bland-Altman</title>)"));
    EXPECT_THAT(page, HasSubstr("</span> <sup>a</sup> <sup>b</sup> <sup>c</sup> <sup>d</sup></div></caption>"));
    EXPECT_THAT(allOf(page, R"(<p class="footnote"><sup>(.)</sup>)"), ElementsAre("a", "b", "c", "d", "a", "a"));
    EXPECT_THAT(page, HasSubstr(R"(rowspan="2"></td><th scope="col" rowspan="2">)"));
    EXPECT_THAT(page, HasSubstr(R"(<th scope="colgroup" colspan="2">)"));
    EXPECT_THAT(page, HasSubstr(R"(<tr><th scope="row">1</th><td>2.639</td><td>2.398</td>)"));
    EXPECT_THAT(page, Not(HasSubstr("<nav")));
    EXPECT_THAT(allOf(page, "( src=| href=|@import|url\\(|<script)"), testing::IsEmpty());
}

TEST(Html, ShowsNamesAsTheyAreWhateverTheyHold)
{
    const std::string page =
        pageOf(R"("<script>alert(1)</script>","a""b",{{x}};1,2,3;3,5,4;6,4,4)",
               R"(VARIABLE="<script>alert(1)</script>" "a""b" WITH="{{x}}" PRINT(DETAILS AGREEMENT))");
    EXPECT_THAT(page, Not(HasSubstr("<script")));
    EXPECT_THAT(page, HasSubstr(R"(<th scope="col">&lt;script&gt;alert(1)&lt;/script&gt;</th>)"));
    EXPECT_THAT(page, HasSubstr(R"(<th scope="col">a&quot;b</th><th scope="col">{{x}}</th>)"));
    EXPECT_THAT(page, HasSubstr(">&lt;script&gt;alert(1)&lt;/script&gt;-{{x}}</text>"));
    EXPECT_THAT(page, HasSubstr("Differences (a&quot;b-{{x}})</text>"));
}

TEST(Html, ListsItsContentsWhenThereIsMoreThanOneSubject)
{
    const auto listed = [](const std::string& page) { return allOf(page, "<li><a href=\"#([a-z0-9-]+)\">"); };
    EXPECT_THAT(listed(pageOf(fourCases, "VARIABLE=A WITH=B C")), ElementsAre("object-1", "object-2"));
    EXPECT_EQ(listed(pageOf(fourCases, "VARIABLE=A B PRINT(AGREEMENT DETAILS) PLOT(RATIO)")).size(), 8U);
    EXPECT_THAT(pageOf(fourCases, "VARIABLE=A B", "zh_CN"), HasSubstr(R"(<h2 id="contents">目录</h2>)"));
    EXPECT_THAT(listed(pageOf(fourCases, "VARIABLE=A WITH=B PLOT(RATIO)")), testing::IsEmpty());

    Host host(fourCases);
    host.run("VARIABLE=A WITH=B");
    host.run("VARIABLE=A WITH=B");
    const std::string page = pageOf(host.session);
    EXPECT_EQ(listed(page).size(), 2U);
    EXPECT_THAT(allOf(page, "<h2>(.*)</h2>"), ElementsAre("1. Bland-Altman Analysis", "2. Bland-Altman Analysis"));
}

}  // namespace
}  // namespace standin
