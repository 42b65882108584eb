#include "report/formats/render_text.h"

#include "tests/report/documents.h"

#include <gmock/gmock.h>

#include <regex>
#include <string>
#include <vector>

namespace report {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using tests::group;

std::string rendered(const std::string& title, const std::string& objects, const TextStyle& style = {})
{
    return renderText(tests::documentsOf({{title, objects}}), style);
}

TEST(RenderText, AlignsCellsBelowTheLabelsOfTheirGroups)
{
    const std::string twoRows = group("null", "{'value': 'r'}, {'value': 's'}");
    const std::string limits = group("'limits'", "{'value': 'lower'}, {'value': 'upper'}");
    const std::string hidden = group("'no'", "{'value': 7}", false);
    const std::string wide = group("'a wide label'", "{'value': 'a'}, {'value': 'b'}");
    const std::string inner = group("'inner'", "{'value': 'x'}");
    struct Case {
        std::string rows;
        std::string columns;
        std::string cells;
        std::string text;
    };
    for (const auto& [rows, columns, cells, text] : std::vector<Case>{
             {group("'lines'", "{'value': '身長'}, {'value': 'é'}, {'value': 'e\\u0301x'}"),
              group("' '", "{'value': '平均値'}, {'value': 'n'}"), "[-1234.5, 1], [0.125, 'o\\tk'], ['欠', -2]",
              "lines    平均値      n\n"
              "身長   -1234.50   1.00\n"
              "é          0.12    o k\n"
              "e\xCC\x81x           欠  -2.00\n"},
             {twoRows, group("'all'", "{'value': 'mean'}, " + limits + ", " + hidden), "[1, 2, 3, 4], [5, 6, 7, 8]",
              "             all\n"
              "   ------------------------\n"
              "            limits\n"
              "         ------------\n"
              "   mean  lower  upper  7.00\n"
              "r  1.00   2.00   3.00  4.00\n"
              "s  5.00   6.00   7.00  8.00\n"},
             {twoRows, group("null", wide + ", {'value': 'c'}"), "[1, 2, 3], [4, 5, 6]",
              "   a wide label\n"
              "   ------------\n"
              "       a      b     c\n"
              "r   1.00   2.00  3.00\n"
              "s   4.00   5.00  6.00\n"},
             {group("null", group("'outer'", inner + ", " + hidden)), group("null", "{'value': 'c'}"),
              "[NaN], [-Infinity]",
              "                           c\n"
              "outer / inner / x        NaN\n"
              "outer / 7.00       -Infinity\n"}}) {
        EXPECT_EQ(rendered("T", tests::table({.rows = rows, .columns = columns, .cells = cells})), "T\n=\n\n" + text);
    }
}

TEST(RenderText, MarksFootnotesByLettersThenNumbers)
{
    std::string footnotes = "'n'";
    for (int i = 1; i < 27; ++i) {
        footnotes += ", 'n'";
    }
    EXPECT_THAT(rendered("T", tests::table({.footnotes = footnotes})),
                AllOf(HasSubstr("\na. n\nb. n\n"), EndsWith("\nz. n\n27. n\n")));
}

TEST(RenderText, UnderlinesTitlesAndPutsObjectsAndDocumentsApart)
{
    const std::string objects = tests::table({.title = "表"}) + ", " + tests::graph("g", {});
    EXPECT_EQ(renderText(tests::documentsOf({{"One", objects}, {"Two", ""}})),
              "One\n===\n\n表\n--\n\n\n[plot] g, 3 points\n\n\nTwo\n===\n");
}

TEST(RenderText, WrapsTitlesWithTheirMarksAndNotesBesideTheirsAndAddsNothingButColours)
{
    const auto longTexts = [](bool colours) {
        const std::string table = tests::table({.title = "Limits of agree\\nment\\u001b[1m",
                                                .footnotes = "'a note', 'one more\\ttoo long note'",
                                                .footnoteRefs = "0, 1, 2"});
        return rendered("Bland-Altman Analysis", table + ", " + tests::graph("plot of differences", {}),
                        {.width = 20, .colours = colours});
    };
    EXPECT_EQ(longTexts(false), "Bland-Altman\n"
                                "Analysis\n"
                                "============\n"
                                "\n"
                                "Limits of agree\n"
                                "ment\uFFFD[1m [a, b]\n"
                                "---------------\n"
                                "\n"
                                "a. a note\n"
                                "b. one more too long\n"
                                "   note\n"
                                "\n"
                                "[plot] plot of\n"
                                "       differences,\n"
                                "       3 points\n");
    EXPECT_THAT(longTexts(true), AllOf(HasSubstr("\x1B[1mAnalysis\x1B[0m\n============\n"),
                                       HasSubstr("\n\x1B[2m   note\x1B[0m\n\n\x1B[2m[plot] plot of\x1B[0m\n")));
    EXPECT_EQ(std::regex_replace(longTexts(true), std::regex("\x1B\\[[0-9]*m"), ""), longTexts(false));
}

}  // namespace
}  // namespace report
