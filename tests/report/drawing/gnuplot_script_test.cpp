#include "report/drawing/gnuplot_script.h"

#include "report/plots/plot_error.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace report {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(GnuplotScript, GivesGnuplotNothingToRunOrToInterpret)
{
    Plot plot;
    plot.title = plot.xLabel = plot.yLabel = plot.footnote = "`id` $(id) \"\n id\n!id\n@x {/=9 a}_b^c %d \\n 'q' 95.00";
    plot.lines.push_back({{0, 1}, {1, 1}, plot.title});
    const std::string script = gnuplotScript(plot);
    EXPECT_THAT(script, Not(HasSubstr("\nid")));
    for (const char* raw : {"`", "$(", "!", "@x", "{", "^", "\\n", "'q'", "\\0569"}) {
        EXPECT_THAT(script, Not(HasSubstr(raw)));
    }
    EXPECT_THAT(script, HasSubstr(R"(\071\065\056\060\060)"));
}

TEST(GnuplotScript, LeavesOutWhatIsNotFinite)
{
    Plot plot;
    plot.points.push_back({{1, notANumber, 3, infinity, 5}, {1, 2, -infinity, 4, 5}, true});
    plot.lines.push_back({{0, 6}, {notANumber, notANumber}, "none"});
    const std::string script = gnuplotScript(plot);
    EXPECT_THAT(script, HasSubstr("<< END\n1 1\n5 5\n"));
    EXPECT_THAT(script, Not(HasSubstr("$layer1")));
    EXPECT_THAT(script, HasSubstr("nohead"));  // its place in the legend is still there
}

TEST(GnuplotScript, ChoosesAxesThatShowEverything)
{
    const auto axes = [](const std::vector<double>& x, const std::vector<double>& y) {
        Plot plot;
        plot.points.push_back({x, y, true});
        const std::string script = gnuplotScript(plot);
        const std::size_t begin = script.find("set xrange");
        return script.substr(begin, script.find("set border") - begin);
    };
    EXPECT_EQ(axes({0, 100}, {-1, 1}), "set xrange [-5:105]\nset yrange [-1.1:1.1]\n");
    EXPECT_EQ(axes({50, 50}, {0, 0}), "set xrange [45:55]\nset yrange [-1:1]\n");
    EXPECT_EQ(axes({}, {}), "set xrange [-1:1]\nset yrange [-1:1]\n");
    EXPECT_THAT(axes({8, std::nextafter(8, 9)}, {notANumber, 2}), HasSubstr("[7."));
    EXPECT_THROW(axes({1, 2}, {-1.7e308, 1.7e308}), PlotError);
}

TEST(GnuplotScript, DrawsAcrossALevelThatEndsNowhereOrIsTooShortToSee)
{
    Plot plot;
    plot.points.push_back({{5, 5}, {1, 2}, true});
    for (const auto& [low, high] :
         std::vector<std::pair<double, double>>{{5, 5}, {-infinity, infinity}, {notANumber, notANumber}}) {
        plot.lines = {{{low, high}, {1.5, 1.5}, "level"}};
        EXPECT_THAT(gnuplotScript(plot), HasSubstr("4.5 1.5\n5.5 1.5\n"));
    }
    plot.lines = {{{-infinity, infinity}, {1.5, 1.6}, "slope"}};
    EXPECT_THAT(gnuplotScript(plot), Not(HasSubstr("1.5\n5.5")));
}

TEST(GnuplotScript, MovesPointsApartOnlyWhereTheChartSaysSo)
{
    Plot plot;
    plot.points.push_back({{1, 2}, {3, 4}, true});
    EXPECT_THAT(gnuplotScript(plot), HasSubstr("set jitter"));
    plot.points[0].dodged = false;
    EXPECT_THAT(gnuplotScript(plot), Not(HasSubstr("set jitter")));
    plot.points.push_back({{1, 2}, {3, 4}, true});
    EXPECT_THROW(gnuplotScript(plot), PlotError);
}

TEST(GnuplotScript, WritesAsManyMarksAsStandSideBySide)
{
    const auto distance = [](double low, double high) {
        Plot plot;
        plot.lines.push_back({{low, high}, {1, 1}, ""});
        const std::string script = gnuplotScript(plot);
        const std::size_t begin = script.find("set xtics ") + 10;
        return script.substr(begin, script.find('\n', begin) - begin);
    };
    EXPECT_EQ(distance(0, 8), "1");
    EXPECT_EQ(distance(-0.3, 0.3), "0.1");
    EXPECT_EQ(distance(1e8, 1.02e8), "5e+05");
    EXPECT_EQ(distance(1234567.001, 1234567.1), "0.025");
}

TEST(GnuplotScript, DrawsUndodgedPointsOfOnePlaceOnce)
{
    Plot plot;
    plot.points.push_back({{0, 500, 500.0001, 1000}, {0, 500, 500, 1000}, false});
    EXPECT_THAT(gnuplotScript(plot), HasSubstr("0 0\n500 500\n1000 1000\n"));
    plot.points[0].dodged = true;
    EXPECT_THAT(gnuplotScript(plot), HasSubstr("0 0\n500 500\n500.0001 500\n1000 1000\n"));
}

}  // namespace
}  // namespace report
