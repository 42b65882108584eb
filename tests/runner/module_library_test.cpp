// Loads the built library as the runner does, and watches what the system has it do.
#include "runner/module_library.h"

#include "tests/support/captured_errors.h"
#include "tests/support/traced_session.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

TEST(ModuleLibrary, FetchesThePointersOnceWhenItIsLoadedAndNeverForAThread)
{
    tests::TracedSession host;
    for (int load = 0; load < 2; ++load) {
        const runner::ModuleLibrary library(BLDATMAN_LIBRARY);
        const std::vector<std::string> calls = host.takeTrace();
        EXPECT_THAT(calls, SizeIs(22));
        EXPECT_THAT(calls, Each(StartsWith("pvGet")));
        std::thread([] {}).join();
        EXPECT_THAT(host.takeTrace(), IsEmpty());
    }
    EXPECT_THAT(host.takeTrace(), IsEmpty());
}

TEST(ModuleLibrary, RunsACommandAndLetsItsErrorsCrossToTheHost)
{
    tests::TracedSession host("A,B;10,9;12,12;14,11");
    const runner::ModuleLibrary library(BLDATMAN_LIBRARY);
    host.takeTrace();
    host.session.command = standin::singleCommand("VARIABLE=A WITH=B PRINT(AGREEMENT)");
    EXPECT_TRUE(host.session.run(library.entryPoint()));
    const long calls = tests::fallibleCallsUpTo(host.takeTrace(), "StatJSONConverter::generateOutput");
    for (long call = 1; call <= calls; call += 7) {
        host.session.monitor.failAtCall(call, [] { throw std::runtime_error("refused"); });
        host.session.command = standin::singleCommand("VARIABLE=A WITH=B PRINT(AGREEMENT)");
        const tests::CapturedErrors errors;
        host.session.run(library.entryPoint());
        EXPECT_THAT(errors.text(), HasSubstr("Standard exception: refused\n")) << call;
    }
    EXPECT_EQ(host.session.monitor.breach(), "");
}

}  // namespace
