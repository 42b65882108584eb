// One run of a command, in which something fails.
#pragma once

#include "tests/faults/commands.h"
#include "tests/faults/event_log.h"

#include <functional>

namespace tests {

struct Fault {
    long call = 0;  ///< which host call fails, from 1; 0: none
    std::function<void()> raise = nullptr;
    long allocation = 0;  ///< which allocation of the module fails, from 1; 0: none
};

/// What a run did.
struct Run {
    Lines events;
    Ending ending;
    bool escaped = false;  ///< an error left the entry point
    bool leaked = false;   ///< a host object or a block of the module's memory is left
};

Run runOf(const Command& command, const Fault& fault);

}  // namespace tests
