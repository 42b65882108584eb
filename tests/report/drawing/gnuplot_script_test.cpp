#include "report/drawing/gnuplot_script.h"

#include "report/plots/plot_error.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace report {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

std::string scriptOf(const std::vector<PointLayer>& points, const std::vector<LineLayer>& lines = {})
{
    return gnuplotScript({"", "", "", "", points, lines});
}

TEST(GnuplotScript, GivesGnuplotNothingToRunOrToInterpret)
{
    const std::string text = "`id` $(id) \"\n id\n!id\n@x {/=9 a}_b^c %d \\n 'q' 95.00";
    const std::string script = gnuplotScript({text, text, text, text, {}, {{{0, 1}, {1, 1}, text}}});
    for (const char* raw : {"\nid", "`", "$(", "!", "@x", "{", "^", "\\n", "'q'", "\\0569"}) {
        EXPECT_THAT(script, Not(HasSubstr(raw)));
    }
    EXPECT_THAT(script, HasSubstr(R"(\071\065\056\060\060)"));
}

TEST(GnuplotScript, LeavesOutWhatIsNotFinite)
{
    const std::string script = scriptOf({{{1, notANumber, 3, infinity, 5}, {1, 2, -infinity, 4, 5}, true}},
                                        {{{0, 6}, {notANumber, notANumber}, "none"}});
    EXPECT_THAT(script, AllOf(HasSubstr("<< END\n1 1\n5 5\n"), Not(HasSubstr("$layer1"))));
    EXPECT_THAT(script, HasSubstr("nohead"));  // its place in the legend is still there
}

TEST(GnuplotScript, ChoosesAxesThatShowEverything)
{
    const auto axes = [](const std::vector<double>& x, const std::vector<double>& y) {
        const std::string script = scriptOf({{x, y, true}});
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
    const auto lineFrom = [](double low, double high, double end) {
        return scriptOf({{{5, 5}, {1, 2}, true}}, {{{low, high}, {1.5, end}, ""}});
    };
    for (const auto& [low, high] :
         std::vector<std::pair<double, double>>{{5, 5}, {-infinity, infinity}, {notANumber, notANumber}}) {
        EXPECT_THAT(lineFrom(low, high, 1.5), HasSubstr("4.5 1.5\n5.5 1.5\n"));
    }
    EXPECT_THAT(lineFrom(-infinity, infinity, 1.6), Not(HasSubstr("1.5\n5.5")));
}

TEST(GnuplotScript, MovesPointsApartOrDrawsThoseOfOnePlaceOnce)
{
    const PointLayer together = {{0, 500, 500.0001, 1000}, {0, 500, 500, 1000}, false};
    const PointLayer apart = {together.x, together.y, true};
    EXPECT_THAT(scriptOf({together}), AllOf(HasSubstr("0 0\n500 500\n1000 1000\n"), Not(HasSubstr("set jitter"))));
    EXPECT_THAT(scriptOf({apart}),
                AllOf(HasSubstr("0 0\n500 500\n500.0001 500\n1000 1000\n"), HasSubstr("set jitter")));
    EXPECT_THROW(scriptOf({together, apart}), PlotError);
}

TEST(GnuplotScript, WritesAsManyMarksAsStandSideBySide)
{
    for (const auto& [low, high, distance] : std::vector<std::tuple<double, double, std::string>>{
             {0, 8, "1"}, {-0.3, 0.3, "0.1"}, {1e8, 1.02e8, "5e+05"}, {1234567.001, 1234567.1, "0.025"}}) {
        EXPECT_THAT(scriptOf({}, {{{low, high}, {1, 1}, ""}}), HasSubstr("set xtics " + distance + "\n"));
    }
}

}  // namespace
}  // namespace report
