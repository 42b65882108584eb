#include "report/drawing/child_process.h"

#include "report/plots/plot_error.h"

#include <gmock/gmock.h>

#include <new>
#include <string>

namespace {

using report::runProgram;
using testing::ThrowsMessage;

TEST(ChildProcess, PassesMoreThanAPipeHoldsInBothDirections)
{
    std::string input;
    for (int i = 0; i < 200000; ++i) {
        input += std::to_string(i) + "\n";
    }
    std::string output;
    const std::string errors = runProgram({BLDATMAN_PARROT, "an argument", R"(a "quote\" and \)", "-d"}, input,
                                          [&](std::string_view piece) { output += piece; });
    EXPECT_EQ(errors, "an argument\na \"quote\\\" and \\\n-d\n");
    EXPECT_TRUE(output == input);
}

TEST(ChildProcess, EndsWhenItsReaderGivesUp)
{
    const auto giveUp = [](std::string_view) { throw std::bad_alloc(); };
    EXPECT_THROW(runProgram({BLDATMAN_PARROT}, std::string(5000000, 'x'), giveUp), std::bad_alloc);
}

TEST(ChildProcess, NamesTheProgramThatIsNotThere)
{
    EXPECT_THAT([] { runProgram({"no-such-program-anywhere"}, "input", [](std::string_view) {}); },
                ThrowsMessage<report::PlotError>("no-such-program-anywhere is not installed"));
}

}  // namespace
