#include "tests/faults/faulty_run.h"

#include "module/entry/entry_point.h"
#include "runner/input/csv_reader.h"
#include "standin/session/session.h"
#include "tests/faults/event_log.h"
#include "tests/faults/module_memory.h"

#include <algorithm>
#include <iterator>

namespace tests {

namespace {

const char* const data = "a,b,c,t\n1,2,2,x\n3,5,,y\n4,4,5,x\n2,3,1,\n7,6,6,x\n";

std::string spaced(const std::string& names)
{
    std::string text;
    for (const char name : names) {
        text += std::string(1, name) + ' ';
    }
    return text;
}

}  // namespace

std::string Command::text() const
{
    return "VARIABLE=" + spaced(first) + (second.empty() ? "" : "WITH=" + spaced(second)) + rest;
}

Lines Run::lines() const
{
    Lines lines;
    std::ranges::copy_if(events, std::back_inserter(lines), [](const auto& event) { return !isCall(event); });
    return lines;
}

Run runOf(const Command& command, const Fault& fault)
{
    constexpr std::size_t moreThanAnyRunMakes = 1U << 17U;
    Run run;
    run.allocations.reserve(moreThanAnyRunMakes);
    standin::Session session;
    session.setLanguage(command.language);
    session.dataSet = runner::readCsv(data, "data.csv");
    session.command = standin::singleCommand(command.text());
    EventLog log;
    session.monitor.traceTo(&log.stream());
    session.monitor.failAtCall(fault.call, fault.raise);
    {
        const ModuleMemory memory(fault.allocation, [&] {
            if (run.allocations.size() < moreThanAnyRunMakes) {  // noting one must not make another
                run.allocations.push_back(log.eventCount());
            }
        });
        try {
            run.delivered = session.run(BLDATMAN);
        } catch (...) {
            run.escaped = true;
        }
        run.leaked = ModuleMemory::stillAllocated() != 0 || !session.monitor.breach().empty();
    }
    session.monitor.traceTo(nullptr);
    run.events = log.events();
    return run;
}

}  // namespace tests
