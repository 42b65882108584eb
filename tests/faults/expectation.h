// What each fault in a command must lead to.
#pragma once

#include "tests/faults/commands.h"
#include "tests/faults/event_log.h"

#include <string>
#include <vector>

namespace tests {

/// The steps of a command that differ in who meets an error and in how the command goes on.
enum class Step { Frame, Describing, Settings, FirstReading, SecondReading };

/// Worked out from what a run without any fault did.
class Expectation {
public:
    /// Both outlive the object.
    Expectation(const Command& command, const Lines& events);

    /// The one ending that is right when this event of the run, a call or an allocation, fails with `error`.
    Ending afterFault(std::size_t event, const std::string& error) const;

private:
    int valuesStored(std::size_t event) const;

    const Command& command_;
    const Lines& events_;
    std::vector<Step> steps_;  ///< of each event
};

}  // namespace tests
