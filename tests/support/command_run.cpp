#include "tests/support/command_run.h"

#include "module/entry/entry_point.h"

#include <gtest/gtest.h>

#include <iostream>

namespace tests {

Host::Host(const std::string& csv)
    : TracedSession(csv)
{
    session.onComplaint = [](const std::string& text) { std::cerr << "HOST: " << text << '\n'; };
}

Outcome Host::run(const std::string& command)
{
    session.command = standin::singleCommand(command);
    takeTrace();
    const CapturedErrors errors;
    const bool delivered = session.run(BLDATMAN);
    EXPECT_EQ(session.monitor.breach(), "");
    return {delivered, errors.text(), takeTrace()};
}

std::vector<std::string> callsOf(const Outcome& outcome, const std::vector<std::string>& prefixes)
{
    return callsOf(outcome.trace, prefixes);
}

}  // namespace tests
