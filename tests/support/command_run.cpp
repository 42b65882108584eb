#include "tests/support/command_run.h"

#include "module/entry/entry_point.h"

#include <gtest/gtest.h>

#include <iostream>

namespace tests {

Outcome Host::run(const std::string& command)
{
    session.onComplaint = [](const std::string& text) { std::cerr << "HOST: " << text << '\n'; };
    session.command = standin::singleCommand(command);
    takeTrace();
    const CapturedErrors errors;
    const bool delivered = session.run(BLDATMAN);
    EXPECT_EQ(session.monitor.breach(), "");
    return {delivered, errors.text(), takeTrace()};
}

}  // namespace tests
