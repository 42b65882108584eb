// Every host call of a command fails once, and every allocation of the module: whatever happens, the command ends, says
// what it has to say, and leaves nothing behind.
#include "tests/faults/event_log.h"
#include "tests/faults/expectation.h"
#include "tests/faults/faulty_run.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iostream>
#include <new>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using tests::Command;
using tests::Ending;
using tests::Expectation;
using tests::Lines;
using tests::Place;
using tests::Run;

Lines refusedSettings(Lines lines)
{
    lines.insert(lines.end(),
                 {"Error: get_Subcommand_Global sub-command : ",
                  "BldatmanInputSetting::start: Standard exception: Error encountered while syntax parsing.",
                  "bldatman_entry: Step3 Unknown error occurred."});
    return lines;
}

// Together they reach every table and every plot in each of their forms, but for the plot of more points than are moved
// apart, and each way in which the settings are read or refused. What no command can reach is a variable that is not
// scale being described to the host: it is refused before.
const std::vector<Command> commands{
    {"a", "b",
     "CRITERIA(CLASSMISSING=INCLUDE LOGTRANSFORM=TRUE PERCENTAGE=TRUE CILEVEL_AGREEMENT=90) PRINT(DETAILS ROWS=3 "
     "SORT(BY=MEAN "
     "DESCENDING=FALSE) MEANDIFF AGREEMENT PERCENTAGE) PLOT(RATIO REFLINE AGREEMENT_LIMITS=CI CI_MEANDIFF)"},
    {"a",
     "cb",
     "PAIRED=YES CRITERIA(SCOPE=LISTWISE AGREEMENT_LIMITS=TWOSD CILEVEL_MEANDIFF=90) PRINT(DETAILS SORT AGREEMENT) "
     "PLOT(AGREEMENT_LIMITS)",
     "zh_CN",
     {"Warning: Data sets have different sizes. Processed up to the smallest size."}},
    {"abc", "", ""},
    {"ab", "ba",
     "CRITERIA(AGREEMENT_LIMITS=THREESD) PRINT(DETAILS SORT(BY=RATIO DESCENDING=TRUE) MEANDIFF AGREEMENT) PLOT(RATIO)",
     "es"},
    {"a", "b", "PRINT(AGREEMENT DETAILS SORT(BY=DIFFERENCE)) PLOT()", "ru"},  // no such table of texts
    {"ab", "", "PAIRED=YES", "en", {"bldatman_entry: Step5 Unknown error occurred."}},
    {"at", "b", "", "en", refusedSettings({"get_Subcommand_Global: variable.GetMeasurementLevel(). 1"})},
    {"a", "t", "", "en", refusedSettings({})},
    {"az", "b", "", "en", refusedSettings({"get_Subcommand_Global: Error during ValidateVariables."})},
    {"a", "b", "PRONT()", "en", {"bldatman_entry: Step2 Unknown error occurred."}},
};

struct Figures {
    long calls = 0;
    long injected = 0;
    long escaped = 0;
    long leaked = 0;
    long wrong = 0;
};

class Sweep {
public:
    Sweep(const Command& command, Figures& figures)
        : command_(command)
        , figures_(figures)
        , whole_(runOf(command, {}))
        , expectation_(command, whole_)
    {
    }

    const Run& whole() const { return whole_; }

    void failEveryCall()
    {
        long call = 0;
        for (std::size_t event = 0; event < whole_.events.size(); ++event) {
            if (tests::isCall(whole_.events[event]) && whole_.events[event].find("::~") == std::string::npos) {
                ++call;
                failCall(call, event, "Standard exception: out of order",
                         [] { throw std::runtime_error("out of order"); });
                failCall(call, event, "Unknown exception occurred.", [] { throw 7; });
            }
        }
        figures_.calls += call;
    }

    void failEveryAllocation()
    {
        const std::string error = "Standard exception: " + std::string(std::bad_alloc().what());
        Place place = Place::Entry;
        for (std::size_t n = 0; n < whole_.allocations.size(); ++n) {
            const std::size_t events = whole_.allocations[n];
            const bool isFirst = n == 0 || events != whole_.allocations[n - 1];
            if (isFirst) {
                place = expectation_.placeOf(events == 0 ? 0 : events - 1);
            }
            const Run run = runOf(command_, {0, {}, static_cast<long>(n) + 1});
            // Between the last call of one place and the first of the next, the one is left for the other, once. What
            // follows a call of the settings at once is theirs.
            if (!(isFirst && place == Place::Settings) &&
                !isOneOf(run, expectation_.endings(place, events, error, true))) {
                place = expectation_.placeOf(events);
            }
            judge(run, expectation_.endings(place, events, error, true),
                  "allocation " + std::to_string(n + 1) + " after " +
                      (events == 0 ? "nothing" : whole_.events[events - 1]));
        }
    }

private:
    static bool isOneOf(const Run& run, const std::vector<Ending>& endings)
    {
        return std::ranges::find(endings, Ending{run.lines(), run.delivered}) != endings.end();
    }

    void failCall(long call, std::size_t event, const std::string& error, const std::function<void()>& raise)
    {
        judge(runOf(command_, {call, raise, 0}), expectation_.endings(expectation_.placeOf(event), event, error, false),
              "call " + std::to_string(call) + ", " + whole_.events[event]);
    }

    void judge(const Run& run, const std::vector<Ending>& right, const std::string& where)
    {
        const bool isWrong = !isOneOf(run, right);
        ++figures_.injected;
        figures_.escaped += run.escaped ? 1 : 0;
        figures_.leaked += run.leaked ? 1 : 0;
        figures_.wrong += isWrong ? 1 : 0;
        if (run.escaped || run.leaked || isWrong) {
            ADD_FAILURE() << command_.text() << "\nfault at " << where << (run.escaped ? "\nescaped" : "")
                          << (run.leaked ? "\nleaked" : "") << "\nwritten:\n"
                          << testing::PrintToString(run.lines()) << "\nright:\n"
                          << testing::PrintToString(right.front().lines);
        }
    }

    const Command& command_;
    Figures& figures_;
    Run whole_;
    Expectation expectation_;
};

/// What the sweep starts from is itself as it should be, and the second telling of the analysis agrees with it.
void expectWhole(const Command& command, const Run& whole)
{
    EXPECT_EQ(whole.lines(), command.expected) << command.text();
    EXPECT_EQ(whole.delivered, command.expected.empty() || command.expected.front().starts_with("Warning"));
    EXPECT_FALSE(whole.escaped || whole.leaked) << command.text();
    EXPECT_GT(whole.allocations.size(), 10U) << command.text();
    const Expectation expectation(command, whole);
    if (whole.delivered) {
        const std::vector<std::size_t> first(expectation.names(1).size(), tests::caseCount);
        const std::vector<std::size_t> second(expectation.names(2).size(), tests::caseCount);
        EXPECT_EQ(expectation.afterReading(first, second).lines, command.expected) << command.text();
    }
}

TEST(Faults, EndTheCommandWithTheirLinesAndLeaveNothingBehind)
{
    Figures figures;
    std::set<std::string> operations;
    for (const Command& command : commands) {
        Sweep sweep(command, figures);
        expectWhole(command, sweep.whole());
        for (const std::string& event : sweep.whole().events) {
            operations.insert(event.substr(0, event.find('\t')));
        }
        sweep.failEveryCall();
        sweep.failEveryAllocation();
    }
    std::cout << "faults: calls=" << figures.calls << " injected=" << figures.injected << " escaped=" << figures.escaped
              << " leaked=" << figures.leaked << " wrong=" << figures.wrong << '\n';
    EXPECT_GT(figures.injected, 3 * figures.calls);
    for (const char* operation :
         {"ParamObj::getStringOrLiteral", "ParamObj::getUpStringGeneric", "ParamObj::getNumberValue",
          "ParamObj::getIntegerValue", "ParamObj::getStringQualList", "ParserMessage::NeedDepVarCont",
          "VarSpecObj::GetValidVarList", "RecKit::Record::GetAll", "Table::add_footnote", "Descendants::setShowLabel",
          "Table::addTableToProcedureJSON", "StatGPLGraph::addToDataVector", "StatGPLGraph::getName",
          "StatJSONConverter::generateOutput"}) {
        EXPECT_TRUE(operations.contains(operation)) << operation << " is not swept";
    }
}

}  // namespace
