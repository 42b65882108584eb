#include "standin/drawing/child_process.h"

#include <gmock/gmock.h>

namespace {

using standin::ProcessError;
using standin::runProgram;
using testing::ThrowsMessage;

TEST(ChildProcess, PassesMoreThanAPipeHoldsInBothDirections)
{
    std::string input;
    for (int i = 0; i < 200000; ++i) {
        input += std::to_string(i) + "\n";
    }
    std::string output;
    const std::string errors =
        runProgram({BLDATMAN_PARROT, "an argument", "-d"}, input, [&](std::string_view piece) { output += piece; });
    EXPECT_EQ(errors, "an argument\n-d\n");
    EXPECT_EQ(output.size(), input.size());
    EXPECT_TRUE(output == input);
}

TEST(ChildProcess, NamesTheProgramThatIsNotThere)
{
    EXPECT_THAT([] { runProgram({"no-such-program-anywhere"}, "input", [](std::string_view) {}); },
                ThrowsMessage<ProcessError>("no-such-program-anywhere is not installed"));
}

}  // namespace
