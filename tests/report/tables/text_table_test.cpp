#include "report/tables/text_table.h"

#include "text/unicode.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace report {
namespace {

std::string drawn(const TableGrid& grid, std::size_t width)
{
    std::string text;
    for (const std::string& line : drawTable(grid, width)) {
        text += line + "\n";
    }
    return text;
}

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
    const std::string unwrapped = "        Agreement    95% Interval     Agreement   95% Interval\n"
                                  "       -----------  ---------------  -----------  -------------\n"
                                  "       Limit Lower     From      To  Limit Upper   From      To\n"
                                  "a - b       -78.10  -112.85  -43.34        73.86  39.11  108.62\n"
                                  "ratio        -0.17    -0.25   -0.10         0.16   0.09    0.24\n";
    EXPECT_EQ(drawn(limits(), 200), unwrapped);
    EXPECT_EQ(drawn(limits(), 63), unwrapped);
    EXPECT_EQ(drawn(limits(), 62), "        Agreement    95% Interval    Agreement  95% Interval\n"
                                   "       -----------  ---------------  ---------  -------------\n"
                                   "                                         Limit\n"
                                   "       Limit Lower     From      To      Upper   From      To\n"
                                   "a - b       -78.10  -112.85  -43.34      73.86  39.11  108.62\n"
                                   "ratio        -0.17    -0.25   -0.10       0.16   0.09    0.24\n");
}

TEST(DrawTable, CutsColumnsBetweenGroupsAndRepeatsRowHeaders)
{
    // Five columns would fit, but not the whole of the second group.
    TableGrid grid = limits();
    grid.groupRows = {{{"all", 0, 6}}, {{"lower", 0, 3}, {"upper", 3, 3}}};
    grid.rowsLabel = "of";
    EXPECT_EQ(drawn(grid, 48), "                   all\n"
                               "       ----------------------------\n"
                               "                  lower\n"
                               "       ----------------------------\n"
                               "of     Limit Lower     From      To\n"
                               "a - b       -78.10  -112.85  -43.34\n"
                               "ratio        -0.17    -0.25   -0.10\n"
                               "\n"
                               "                  all\n"
                               "       --------------------------\n"
                               "                 upper\n"
                               "       --------------------------\n"
                               "of     Limit Upper   From      To\n"
                               "a - b        73.86  39.11  108.62\n"
                               "ratio         0.16   0.09    0.24\n");
}

TEST(DrawTable, WrapsRowHeadersAndIndentsTheirLaterLines)
{
    const TableGrid grid = {{}, {"bias"}, "", {"difference of the meters", "limit"}, {{"-12.345"}, {"0.125"}}};
    EXPECT_EQ(drawn(grid, 31), "                    bias\n"
                               "difference of\n"
                               "  the meters     -12.345\n"
                               "limit              0.125\n");
}

TEST(DrawTable, BreaksAWordOfAColumnThatIsTooWideByItself)
{
    const TableGrid grid = {{{{"一致の限界", 1, 1}}}, {"a", "WrightPeakFlow"}, "", {"r"}, {{"1.5", "-2.5"}}};
    EXPECT_EQ(drawn(grid, 12), "     a\n"
                               "r  1.5\n"
                               "\n"
                               "   一致の限\n"
                               "      界\n"
                               "   ---------\n"
                               "   WrightPea\n"
                               "       kFlow\n"
                               "r       -2.5\n");
}

TEST(DrawTable, FitsEveryWidthAndLosesNoNumber)
{
    TableGrid grid = limits();
    grid.rowHeaders = {"Wright meter - mini meter", "(身長の測定値-WrightPeakFlowMeter)/平均"};
    for (std::size_t width = 20; width <= 120; ++width) {
        for (const std::string& line : drawTable(grid, width)) {
            EXPECT_LE(text::textWidth(line), width) << line;
        }
        const std::string text = drawn(grid, width);
        for (const auto& row : grid.body) {
            for (const std::string& number : row) {
                EXPECT_NE(text.find(" " + number), std::string::npos) << number << "\n" << text;
            }
        }
    }
}

}  // namespace
}  // namespace report
