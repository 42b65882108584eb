#include "module/syntax/command_describer.h"

#include "standin/objects/parser/descriptor_data.h"
#include "tests/support/captured_errors.h"
#include "tests/support/traced_session.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

/// A host without data, and the description that the module gives it.
struct Description {
    tests::TracedSession traced;
    ProcedureDataSource source;
    CommandDescriptor descriptor{"BLDATMAN"};
    QUVO_TokenSequence tokens{true};
    bldatman::BldatmanCommandDescriber describer{tokens, source, descriptor};

    const standin::CommandDescription& described() const { return descriptor.data->description; }
};

TEST(CommandDescriber, RefusesAnyOtherNumber)
{
    Description host;
    const tests::CapturedErrors errors;
    EXPECT_EQ(host.describer.m_setSubCommandDescription(4), 1);
    EXPECT_EQ(errors.text(), "Error: BldatmanCommandDescriber::m_setSubCommandDescription - Unknown sub-command\n");
    EXPECT_TRUE(host.described().subcommands.empty());
}

TEST(CommandDescriber, ReportsAnErrorAsItsLineAndKeepsWhatWasAdded)
{
    Description host;
    constexpr long withinCriteria = 40;
    host.traced.session.monitor.failAtCall(withinCriteria, [] { throw std::runtime_error("no room"); });
    const tests::CapturedErrors errors;
    EXPECT_EQ(host.describer.describe(), 1);
    EXPECT_EQ(host.described().subcommands.size(), 1U);
    host.traced.session.monitor.failAtCall(1, [] { throw 1; });
    EXPECT_EQ(host.describer.describe(), 1);
    EXPECT_EQ(errors.text(), "BldatmanCommandDescriber: Standard exception: no room\n"
                             "BldatmanCommandDescriber: Unknown exception occurred.\n");
}

}  // namespace
