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

template <class Part>
std::string namesOf(const std::vector<Part>& parts)
{
    std::string names;
    for (const Part& part : parts) {
        names += (names.empty() ? "" : " ") + part.name;
        if constexpr (requires { part.parameters; }) {
            names += "(" + namesOf(part.parameters) + ")";
        } else if (!part.qualifiers.empty()) {
            names += "(" + namesOf(part.qualifiers) + ")";
        }
    }
    return names;
}

TEST(CommandDescriber, AddsEachPartOnceInOrder)
{
    Description host;
    for (const int number : {0, 1, 2, 3}) {
        EXPECT_EQ(host.describer.m_setSubCommandDescription(number), 0);
    }
    EXPECT_EQ(
        namesOf(host.described().subcommands),
        "(VARIABLE WITH PAIRED) "
        "CRITERIA(SCOPE CLASSMISSING LOGTRANSFORM AGREEMENT_LIMITS CILEVEL_AGREEMENT CILEVEL_MEANDIFF PERCENTAGE) "
        "PRINT(DETAILS ROWS SORT(BY DESCENDING) AGREEMENT MEANDIFF PERCENTAGE) "
        "PLOT(RATIO REFLINE AGREEMENT_LIMITS CI_MEANDIFF)");
}

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
