#include "report/tables/text_table.h"

#include "text/unicode.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <string>
#include <vector>

namespace report {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Le;
using testing::ResultOf;

/// Two limits with an interval each; 63 columns wide when nothing is wrapped.
TableGrid limits()
{
    return {{{{"Agreement", 0, 1}, {"95% Interval", 1, 2}, {"Agreement", 3, 1}, {"95% Interval", 4, 2}}},
            {"Limit Lower", "From", "To", "Limit Upper", "From", "To"},
            "",
            {"a - b", "ratio"},
            {{"-78.10", "-112.85", "-43.34", "73.86", "39.11", "108.62"},
             {"-0.17", "-0.25", "-0.10", "0.16", "0.09", "0.24"}}};
}

TEST(DrawTable, WrapsHeadersOnlyWhenTheTableIsTooWide)
{
    const auto unwrapped = ElementsAre("        Agreement    95% Interval     Agreement   95% Interval",
                                       "       -----------  ---------------  -----------  -------------",
                                       "       Limit Lower     From      To  Limit Upper   From      To",
                                       "a - b       -78.10  -112.85  -43.34        73.86  39.11  108.62",
                                       "ratio        -0.17    -0.25   -0.10         0.16   0.09    0.24");
    EXPECT_THAT(drawTable(limits(), 200), unwrapped);
    EXPECT_THAT(drawTable(limits(), 63), unwrapped);
    EXPECT_THAT(drawTable(limits(), 62), ElementsAre("        Agreement    95% Interval    Agreement  95% Interval",
                                                     "       -----------  ---------------  ---------  -------------",
                                                     "                                         Limit",
                                                     "       Limit Lower     From      To      Upper   From      To",
                                                     "a - b       -78.10  -112.85  -43.34      73.86  39.11  108.62",
                                                     "ratio        -0.17    -0.25   -0.10       0.16   0.09    0.24"));
}

TEST(DrawTable, CutsColumnsBetweenGroupsAndRepeatsRowHeaders)
{
    // Five columns would fit, but not the whole of the second group.
    TableGrid grid = limits();
    grid.groupRows = {{{"all", 0, 6}}, {{"lower", 0, 3}, {"upper", 3, 3}}};
    grid.rowsLabel = "of";
    EXPECT_THAT(drawTable(grid, 48),
                ElementsAre("                   all", "       ----------------------------", "                  lower",
                            "       ----------------------------", "of     Limit Lower     From      To",
                            "a - b       -78.10  -112.85  -43.34", "ratio        -0.17    -0.25   -0.10", "",
                            "                  all", "       --------------------------", "                 upper",
                            "       --------------------------", "of     Limit Upper   From      To",
                            "a - b        73.86  39.11  108.62", "ratio         0.16   0.09    0.24"));
}

TEST(DrawTable, WrapsRowHeadersWithAnIndentAndBreaksAWordThatIsTooWideByItself)
{
    const TableGrid rows = {{}, {"bias"}, "", {"difference of the meters", "limit"}, {{"-12.345"}, {"0.125"}}};
    EXPECT_THAT(drawTable(rows, 31), ElementsAre("                    bias", "difference of",
                                                 "  the meters     -12.345", "limit              0.125"));
    const TableGrid words = {{{{"一致の限界", 1, 1}}}, {"a", "WrightPeakFlow"}, "", {"r"}, {{"1.5", "-2.5"}}};
    EXPECT_THAT(drawTable(words, 12), ElementsAre("     a", "r  1.5", "", "   一致の限", "      界", "   ---------",
                                                  "   WrightPea", "       kFlow", "r       -2.5"));
}

TEST(DrawTable, FitsEveryWidthAndLosesNoNumber)
{
    TableGrid grid = limits();
    grid.rowHeaders = {"Wright meter - mini meter", "(身長の測定値-WrightPeakFlowMeter)/平均"};
    for (std::size_t width = 20; width <= 120; ++width) {
        const std::vector<std::string> lines = drawTable(grid, width);
        EXPECT_THAT(lines, Each(ResultOf(text::textWidth, Le(width))));
        for (const auto& row : grid.body) {
            for (const std::string& number : row) {
                EXPECT_THAT(lines, Contains(HasSubstr(" " + number))) << width;
            }
        }
    }
}

}  // namespace
}  // namespace report
