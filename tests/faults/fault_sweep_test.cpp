// Every host call of a command fails once, and every allocation of the module: whatever happens, the command ends, says
// what it has to say, and leaves nothing behind.
#include "tests/faults/expectation.h"
#include "tests/faults/faulty_run.h"

#include <gmock/gmock.h>

#include <iostream>
#include <new>
#include <set>
#include <stdexcept>
#include <string>

namespace {

using tests::Command;
using tests::Ending;
using tests::Expectation;
using tests::Fault;
using tests::Run;

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
        , expectation_(command, whole_.events)
    {
    }

    const Run& whole() const { return whole_; }

    void failEverythingOnce()
    {
        long calls = 0;
        long allocations = 0;
        for (std::size_t event = 0; event < whole_.events.size(); ++event) {
            const std::string& text = whole_.events[event];
            if (tests::isAllocation(text)) {
                fail(event, {.allocation = ++allocations},
                     "Standard exception: " + std::string(std::bad_alloc().what()));
            } else if (tests::isCall(text) && text.find("::~") == std::string::npos) {
                ++calls;
                fail(event, {.call = calls, .raise = [] { throw std::runtime_error("out of order"); }},
                     "Standard exception: out of order");
                fail(event, {.call = calls, .raise = [] { throw 7; }}, "Unknown exception occurred.");
            }
        }
        figures_.calls += calls;
    }

private:
    void fail(std::size_t event, const Fault& fault, const std::string& error)
    {
        const Ending right = expectation_.afterFault(event, error);
        const Run run = runOf(command_, fault);
        const bool isWrong = run.ending != right;
        ++figures_.injected;
        figures_.escaped += run.escaped ? 1 : 0;
        figures_.leaked += run.leaked ? 1 : 0;
        figures_.wrong += isWrong ? 1 : 0;
        if (run.escaped || run.leaked || isWrong) {
            ADD_FAILURE() << command_.text() << "\nfault at event " << event + 1 << " of the run, "
                          << whole_.events[event] << (run.escaped ? "\nescaped" : "") << (run.leaked ? "\nleaked" : "")
                          << "\nended: " << testing::PrintToString(run.ending)
                          << "\nright: " << testing::PrintToString(right);
        }
    }

    const Command& command_;
    Figures& figures_;
    Run whole_;
    Expectation expectation_;
};

TEST(Faults, EndTheCommandWithTheirLinesAndLeaveNothingBehind)
{
    Figures figures;
    std::set<std::string> operations;
    for (const Command& command : tests::commands) {
        Sweep sweep(command, figures);
        EXPECT_EQ(sweep.whole().ending, command.whole) << command.text();
        EXPECT_FALSE(sweep.whole().escaped || sweep.whole().leaked) << command.text();
        for (const std::string& event : sweep.whole().events) {
            operations.insert(event.substr(0, event.find('\t')));
        }
        sweep.failEverythingOnce();
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
