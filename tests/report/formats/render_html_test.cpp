#include "report/formats/render_html.h"

#include "tests/support/command_run.h"
#include "tests/support/drawing_test.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace report {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using tests::Host;

const char* const fourCases = "A,B,C;10,9,8;12,12,11;14,11,12;12,12,10";

/// What stands between the two texts wherever the first is found.
std::vector<std::string> between(const std::string& text, const std::string& begin, const std::string& end)
{
    std::vector<std::string> found;
    for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at + 1)) {
        const std::size_t start = at + begin.size();
        found.push_back(text.substr(start, text.find(end, start) - start));
    }
    return found;
}

std::string pageOf(const standin::Session& session)
{
    DrawnPlots plots(session.documents, [](std::size_t, std::size_t) {});
    return renderHtml({session.documents, session.languageCode, plots});
}

std::string pageOf(const std::string& csv, const std::string& command, const std::string& language = "en")
{
    Host host(csv);
    host.session.setLanguage(language);
    host.run(command);
    return pageOf(host.session);
}

TEST(Html, HoldsEveryTableAndPlotOfTheDocument)
{
    const std::string page = pageOf(fourCases,
                                    "VARIABLE=A WITH=B CRITERIA(LOGTRANSFORM=TRUE) PRINT(DETAILS ROWS=2 "
                                    "SORT MEANDIFF AGREEMENT) PLOT(RATIO)",
                                    "pt-BR");
    EXPECT_THAT(page, StartsWith("<!DOCTYPE html>\n<html lang=\"pt-BR\">"));
    EXPECT_THAT(between(page, "<caption>", "</caption>"), SizeIs(3));
    EXPECT_THAT(between(page, "<figure", "</figure>"), SizeIs(2));
    EXPECT_THAT(page, HasSubstr(R"(<title>Análise Bland-Altman</title>)"));
    EXPECT_THAT(page, HasSubstr("</span> <sup>a</sup> <sup>b</sup> <sup>c</sup> <sup>d</sup></div></caption>"));
    EXPECT_THAT(between(page, R"(<p class="footnote"><sup>)", "</sup>"), ElementsAre("a", "b", "c", "d", "a", "a"));
    EXPECT_THAT(page, HasSubstr(R"(rowspan="2"></td><th scope="col" rowspan="2">)"));
    EXPECT_THAT(page, HasSubstr(R"(<th scope="colgroup" colspan="2">)"));
    EXPECT_THAT(page, HasSubstr(R"(<tr><th scope="row">1</th><td>2.639</td><td>2.398</td>)"));
    EXPECT_THAT(page, Not(HasSubstr("<nav")));
    for (const char* loading : {" src=", " href=", "@import", "url(", "<script", "<link"}) {
        EXPECT_THAT(page, Not(HasSubstr(loading)));
    }
}

class DrawnHtml : public tests::DrawingTest {};

TEST_F(DrawnHtml, ShowsNamesAsTheyAreWhateverTheyHold)
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

TEST(Html, ListsItsContentsWhereThingsAreAlike)
{
    const auto listed = [](const std::string& page) { return between(page, "<li><a href=\"#", "\">"); };
    EXPECT_THAT(listed(pageOf(fourCases, "VARIABLE=A WITH=B C")), ElementsAre("object-1", "object-2"));
    EXPECT_THAT(listed(pageOf(fourCases, "VARIABLE=A B PRINT(AGREEMENT DETAILS) PLOT(RATIO)")), SizeIs(8));
    EXPECT_THAT(pageOf(fourCases, "VARIABLE=A B", "zh_CN"), HasSubstr(R"(<h2 id="contents">目录</h2>)"));
    EXPECT_THAT(listed(pageOf(fourCases, "VARIABLE=A WITH=B PLOT(RATIO)")), IsEmpty());
    const std::string tooLarge = "A,B;1e303,1;-1e303,2;3,1";
    EXPECT_THAT(listed(pageOf(tooLarge, "VARIABLE=A WITH=B PLOT(RATIO)")), IsEmpty());

    Host host(fourCases);
    host.run("VARIABLE=A WITH=B");
    host.run("VARIABLE=A WITH=B");
    const std::string page = pageOf(host.session);
    EXPECT_THAT(listed(page), SizeIs(2));
    EXPECT_THAT(between(page, "<h2>", "</h2>"), ElementsAre("1. Bland-Altman Analysis", "2. Bland-Altman Analysis"));
}

}  // namespace
}  // namespace report
