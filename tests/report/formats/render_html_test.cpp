#include "report/formats/render_html.h"

#include "tests/report/documents.h"
#include "tests/support/drawing_test.h"

#include <gmock/gmock.h>

#include <array>
#include <cstddef>
#include <list>
#include <string>
#include <vector>

namespace report {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using tests::graph;
using tests::table;

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

std::string pageOf(const std::list<rapidjson::Document>& documents, const std::string& language = "en")
{
    DrawnPlots plots(documents, [](std::size_t, std::size_t) {});
    return renderHtml({documents, language, plots});
}

class DrawnHtml : public tests::DrawingTest {};

TEST_F(DrawnHtml, ShowsNamesAsTheyAreWhateverTheyHold)
{
    const std::string name = R"(<script>"{{x}})";
    const std::string label = "'" + name + "'";
    const std::string leaf = "{'value': " + label + "}";
    const std::string page = pageOf(tests::documentsOf(
        {{name, table({name, tests::group(label, leaf), tests::group(label, leaf), "[" + label + "]", label}) + ", " +
                    graph(name, {"GUIDE: axis(dim(1),label(\"" + name + "\"))"}) + ", " +
                    graph(name, {"PAGE: " + name})}}));
    EXPECT_THAT(page, Not(HasSubstr("<script")));
    EXPECT_THAT(between(page, "&lt;script&gt;&quot;{{x}}", ">"),
                ElementsAre("</title", "</h1", "</a", "</a", "</a", "</span", "</th", "</th", "</th", "</th", "</td",
                            "</p", "</text", "</strong",
                            ": column 7: expected a name, a number or a text, found &quot;&lt;&quot;.</span"));
}

TEST(Html, KeepsAHiddenTitleForThoseWhoCannotSee)
{
    const std::string page = pageOf(tests::documentsOf({{"", table({"t"}) + "," + table({})}}));
    EXPECT_THAT(between(page, "<caption", ">"), ElementsAre("", " class=\"hidden\""));
}

TEST(Html, ListsItsContentsWhereThingsAreAlike)
{
    const std::string mean = R"(GUIDE: axis(dim(1),label("Mean")))";
    const std::string huge = "1e303, -1e303, 3";
    const auto listedBeside = [&](const std::string& other) {
        const std::string plot = graph("a", {mean, "ELEMENT: point(position(x*y))"}, huge);
        return between(pageOf(tests::documentsOf({{"", table({"t"}) + "," + plot + "," + other}})), "<li><a href=\"#",
                       "\">");
    };
    EXPECT_THAT(listedBeside(graph("b", {mean}, huge)), IsEmpty());
    for (const std::string& other :
         {graph("a", {mean}, huge), table({"t"}), graph("b", {mean}),
          graph("b", {R"(GUIDE: axis(dim(1),label("Sum")))"}, huge), graph("b", {mean, "PAGE: begin()"}, huge)}) {
        EXPECT_THAT(listedBeside(other), ElementsAre("object-1", "object-2", "object-3")) << other;
    }
}

TEST(Html, TellsDocumentsApartInTheLanguageThatIsAskedForOrEnglish)
{
    for (const auto& [code, tag, contents] : std::vector<std::array<std::string, 3>>{
             {"zh_CN", "zh-CN", "目录"}, {"pt-BR", "pt-BR", "Sumário"}, {"xx", "en", "Contents"}}) {
        const std::string page =
            pageOf(tests::documentsOf({{"Title", graph("a", {})}, {"Title", graph("a", {})}}), code);
        EXPECT_THAT(page, AllOf(HasSubstr("<html lang=\"" + tag + "\">"), HasSubstr("\"contents\">" + contents + "<")));
        EXPECT_THAT(between(page, "<h2>", "</h2>"), ElementsAre("1. Title", "2. Title"));
        EXPECT_THAT(between(page, "<a href=\"#", "\">"), ElementsAre("object-1", "object-2"));
    }
}

}  // namespace
}  // namespace report
