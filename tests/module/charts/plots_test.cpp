#include "tests/support/command_run.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

/// The plots of a command with so many points, as JSON.
std::string plotsOf(int count)
{
    std::string csv = "A,B";
    for (int i = 0; i < count; ++i) {
        csv += ";" + std::to_string(i % 7) + "," + std::to_string(i % 5);
    }
    tests::Host host(csv);
    host.run("VARIABLE=A WITH=B PLOT(RATIO)");
    return tests::json(host.object(0)["gpl"]) + tests::json(host.object(1)["gpl"]);
}

TEST(Plots, StopDodgingAboveTenThousandPoints)
{
    const std::string dodged = "ELEMENT: point.dodge.symmetric(position(xdata*ydata))";
    const std::string plain = "ELEMENT: point(position(xdata*ydata))";
    EXPECT_THAT(plotsOf(10000), AllOf(HasSubstr(dodged), Not(HasSubstr(plain))));
    EXPECT_THAT(plotsOf(10001), AllOf(HasSubstr(plain), Not(HasSubstr(dodged)),
                                      HasSubstr("label(\\\" Note : Disabled dodge for potential performance gains, "
                                                "Overlapping data points will be hidden\\\")")));
}

}  // namespace
