#include "tests/faults/faulty_run.h"

#include "module/entry/entry_point.h"
#include "runner/input/csv_reader.h"
#include "standin/session/session.h"
#include "tests/faults/module_memory.h"

namespace tests {

Run runOf(const Command& command, const Fault& fault)
{
    Run run;
    standin::Session session;
    session.setLanguage(command.language);
    session.dataSet = runner::readCsv(data, "data.csv");
    session.command = standin::singleCommand(command.text());
    EventLog log;
    session.monitor.traceTo(&log.stream());
    session.monitor.failAtCall(fault.call, fault.raise);
    {
        long allocations = 0;
        const ModuleMemory memory([&] {
            log.noteAllocation();
            return ++allocations != fault.allocation;
        });
        try {
            run.ending.delivered = session.run(BLDATMAN);
        } catch (...) {
            run.escaped = true;
        }
        run.leaked = ModuleMemory::stillAllocated() != 0 || !session.monitor.breach().empty();
    }
    session.monitor.traceTo(nullptr);
    run.events = log.events();
    run.ending.lines = linesAmong(run.events, run.events.size());
    return run;
}

}  // namespace tests
