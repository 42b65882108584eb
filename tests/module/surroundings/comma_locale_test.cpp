// A process whose C numeric locale writes a comma: labels follow it, data do not.
#include "report/drawing/drawn_plots.h"
#include "report/drawing/gnuplot_script.h"
#include "report/formats/render_html.h"
#include "report/formats/render_json.h"
#include "report/formats/render_text.h"
#include "report/plots/plot_reader.h"
#include "tests/support/command_run.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using testing::HasSubstr;

class CommaLocale : public testing::Test {
protected:
    void SetUp() override
    {
#ifdef BLDATMAN_LOCALES  // the folder of a locale made for the tests, where the system may have none
        ASSERT_EQ(setenv("LOCPATH", BLDATMAN_LOCALES, 1), 0);
#endif
        for (const char* name : {"de_DE.UTF-8", "German"}) {
            if (std::setlocale(LC_NUMERIC, name) != nullptr && *std::localeconv()->decimal_point == ',') {
                return;
            }
        }
        FAIL() << "no locale with a decimal comma; the package locales makes one";
    }
    void TearDown() override
    {
        EXPECT_NE(std::setlocale(LC_NUMERIC, "C"), nullptr);
    }
};

/// All that comes of one command, as texts.
struct Written {
    std::string data;
    std::string text;
    std::string page;
    std::string script;
    std::vector<std::string> trace;

    friend bool operator==(const Written&, const Written&) = default;
};

Written written()
{
    tests::Host host("a,b;1.25,2.5;3.75,5;4.5,4.125");
    const auto outcome =
        host.run("VARIABLE=a WITH=b CRITERIA(CILEVEL_MEANDIFF=97.5) PRINT(MEANDIFF) PLOT(REFLINE CI_MEANDIFF)");
    report::DrawnPlots plots(host.session.documents, [](std::size_t, std::size_t) {});
    return {report::renderJson(host.session.documents), report::renderText(host.session.documents),
            report::renderHtml({host.session.documents, "en", plots}),
            report::gnuplotScript(report::readPlot(host.object(1))), outcome.trace};
}

std::string withPoints(std::string text)
{
    for (const char* level : {"97,50", "95,00"}) {
        for (auto found = text.find(level); found != std::string::npos; found = text.find(level)) {
            text[found + 2] = '.';
        }
    }
    return text;
}

TEST_F(CommaLocale, ShowsInLabelsAndNowhereElse)
{
    Written withComma = written();
    EXPECT_THAT(withComma.data, HasSubstr("\"97,50% Confidence Interval\""));
    EXPECT_THAT(withComma.data, HasSubstr("\"95,00% Agreement Limit\""));
    ASSERT_NE(std::setlocale(LC_NUMERIC, "C"), nullptr);
    for (std::string* written : {&withComma.data, &withComma.text, &withComma.page}) {
        *written = withPoints(*written);
    }
    std::ranges::transform(withComma.trace, withComma.trace.begin(), withPoints);
    EXPECT_EQ(withComma, written());
}

}  // namespace
