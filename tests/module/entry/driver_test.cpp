#include "host/common_areas.h"
#include "module/entry/load_hook.h"
#include "tests/support/command_run.h"

#include <gmock/gmock.h>

#include <set>
#include <stdexcept>

namespace {

using testing::ElementsAre;
using tests::Host;

TEST(LoadHook, DoesNothingForAnyReasonButAttach)
{
    Host host("a");
    const void* before = bldatman::loadState().moduleHandle;
    for (const unsigned long reason : {0UL, 2UL, 3UL}) {
        EXPECT_EQ(bldatman::loadHook(&host, reason, nullptr), 1);
    }
    EXPECT_EQ(host.session.monitor.callCount(), 0);
    EXPECT_EQ(bldatman::loadState().moduleHandle, before);
}

TEST(LoadHook, FetchesEachPointerOnceInOrderIntoItsOwnPlace)
{
    Host host("a");
    EXPECT_EQ(bldatman::loadHook(&host, 1, nullptr), 1);
    EXPECT_THAT(tests::callsOf(host.takeTrace(), {""}),
                ElementsAre("pvGetCmnBpr []", "pvGetCmaDic []", "pvGetCmaGlb []", "pvGetCmaMch []", "pvGetCmaObv []",
                            "pvGetCmaSym []", "pvGetCmaSys []", "pvGetCmnDic []", "pvGetCmnDmo []", "pvGetCmnGlb []",
                            "pvGetCmnInc []", "pvGetCmnIo []", "pvGetCmnLoc []", "pvGetCmnMch []", "pvGetCmnMcs []",
                            "pvGetCmnObv []", "pvGetCmnStk []", "pvGetCmnSym []", "pvGetCmnSys []", "pvGetCmnWrk []",
                            "pvGetCmnDtm []", "pvGetCmnBox []"));
    const bldatman::LoadState& state = bldatman::loadState();
    EXPECT_EQ(state.moduleHandle, &host);
    const std::set<void*> different(state.commonAreas.begin(), state.commonAreas.end());
    EXPECT_EQ(different.size(), 22U);
    EXPECT_EQ(state.commonAreas[6], pvGetCmaSys());
    EXPECT_EQ(state.commonAreas[21], pvGetCmnBox());
}

const std::string everything = "VARIABLE=a WITH=b CRITERIA(LOGTRANSFORM=TRUE) "
                               "PRINT(DETAILS SORT(BY=MEAN) MEANDIFF AGREEMENT) PLOT(RATIO AGREEMENT_LIMITS=CI)";

// `Host::run` also checks that no host object outlives the command. Every call fails once in the test for faults.
TEST(Driver, ReportsAnErrorThroughWhoeverCatchesIt)
{
    Host host("a,b;1,2;2,4");
    const auto trace = host.run(everything).trace;
    const auto errorsAt = [&](const char* call) {
        host.session.monitor.failAtCall(tests::fallibleCallsUpTo(trace, call),
                                        [] { throw std::runtime_error("boom"); });
        return host.run(everything).errors;
    };
    EXPECT_EQ(errorsAt("BpProcedure::"), "BLDATMAN: Standard exception: boom\n") << "the first object of all";
    EXPECT_EQ(errorsAt("SubComDescriptor::addParamDesc"),
              "BldatmanCommandDescriber: Standard exception: boom\nbldatman_entry: Step1 Unknown error occurred.\n");
    for (const char* call :
         {"UniversalParser::get", "StatJSONGenerator::Stat", "OPSCommonOutput", "Table::Table", "Descendants::Desc",
          "Cells::addCells", "Dimension::", "StatGPLGraph::getName", "StatJSONConverter::generate"}) {
        EXPECT_EQ(errorsAt(call), "BLDATMAN: Standard exception: boom\n") << call;
    }
}

// Reading goes on with the cases that were there: the third `Next` of the first list never comes.
TEST(Driver, AnalysesWhatWasReadBeforeAReadingError)
{
    Host host("a,b;1,2;2,4;3,3");
    const auto whole = host.run("VARIABLE=a WITH=b");
    const long call = tests::fallibleCallsUpTo(whole.trace, "RecKit::RecordIterator::Next", 3);
    host.session.monitor.failAtCall(call, [] { throw std::runtime_error("disk gone"); });
    const auto outcome = host.run("VARIABLE=a WITH=b");
    EXPECT_TRUE(outcome.delivered);
    EXPECT_EQ(outcome.errors, "Standard exception: disk gone\n");
    EXPECT_EQ(host.object(0)["data"]["xdata"].Size(), 2U);
}

TEST(Driver, EndsTheCommandWhenTheHostHasNoLanguageFolder)
{
    Host host("a,b;1,2;2,4");
    host.session.languageFolder = "";
    const auto outcome = host.run("VARIABLE=a WITH=b");
    EXPECT_FALSE(outcome.delivered);
    EXPECT_EQ(outcome.errors, "BLDATMAN: Standard exception: invalid string position\n");
}

TEST(Driver, KeepsNothingFromOneCommandToTheNext)
{
    Host host("a,b;1,2;2,4");
    const auto first = host.run("VARIABLE=a WITH=b PRINT(DETAILS AGREEMENT) PLOT(RATIO)");
    host.run("VARIABLE=nobody");
    const auto again = host.run("VARIABLE=a WITH=b PRINT(DETAILS AGREEMENT) PLOT(RATIO)");
    EXPECT_EQ(first.trace, again.trace);
    ASSERT_EQ(host.session.documents.size(), 2U);
    EXPECT_EQ(host.session.documents.front(), host.session.documents.back());
}

}  // namespace
