#include "module/syntax/command_describer.h"

#include "standin/objects/parser/descriptor_data.h"
#include "tests/support/captured_errors.h"
#include "tests/support/traced_session.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace {

using standin::ParameterDescription;
using testing::ElementsAre;

/// A host without data, and the description that the module gives it.
struct Description {
    tests::TracedSession traced;
    ProcedureDataSource source;
    CommandDescriptor descriptor{"BLDATMAN"};
    QUVO_TokenSequence tokens{true};
    bldatman::BldatmanCommandDescriber describer{tokens, source, descriptor};

    const standin::CommandDescription& described() const { return descriptor.data->description; }
};

/// One line per parameter: everything that the description says of it but the values.
std::string inWords(const ParameterDescription& parameter)
{
    std::string words = parameter.name + " kind " + std::to_string(parameter.kind);
    words += parameter.required ? ", required" : "";
    words += parameter.valueRequired ? "" : ", value optional";
    words += parameter.brackets != 0 ? ", bracket " + std::to_string(parameter.brackets) : "";
    words += parameter.qualifierOption ? ", option " + std::to_string(*parameter.qualifierOption) : "";
    words += parameter.lowerBound ? ", from " + std::to_string(*parameter.lowerBound) : "";
    words += parameter.upperBound ? ", to " + std::to_string(*parameter.upperBound) : "";
    for (const ParameterDescription& qualifier : parameter.qualifiers) {
        words += ", " + qualifier.name;
    }
    return words;
}

std::vector<std::string> inWords(const standin::SubcommandDescription& subcommand)
{
    std::vector<std::string> words = {subcommand.name};
    for (const ParameterDescription& parameter : subcommand.parameters) {
        words.push_back(inWords(parameter));
    }
    return words;
}

TEST(CommandDescriber, TellsTheHostWhoSpeaks)
{
    Description description;
    EXPECT_THAT(tests::callsOf(description.traced.takeTrace(), {"ParserMessage::Set"}),
                ElementsAre(R"(ParserMessage::SetCommandName ["BLDATMAN"])",
                            R"(ParserMessage::SetProcedureTitle ["Bland Altman Analysis"])"));
}

TEST(CommandDescriber, DescribesFourSubcommandsInOrder)
{
    Description host;
    EXPECT_EQ(host.describer.describe(), 0);
    const auto& subcommands = host.described().subcommands;
    ASSERT_EQ(subcommands.size(), 4U);
    EXPECT_THAT(inWords(subcommands[0]), ElementsAre("", "VARIABLE kind 16, required, bracket 3, option 0",
                                                     "WITH kind 16, bracket 3", "PAIRED kind 3, option 1"));
    EXPECT_THAT(inWords(subcommands[1]),
                ElementsAre("CRITERIA", "SCOPE kind 3, option 0", "CLASSMISSING kind 3, option 0",
                            "LOGTRANSFORM kind 3, option 0", "AGREEMENT_LIMITS kind 4, option 0",
                            "CILEVEL_AGREEMENT kind 7, option 0, from 0.000000, to 100.000000",
                            "CILEVEL_MEANDIFF kind 7, option 0, from 0.000000, to 100.000000",
                            "PERCENTAGE kind 3, option 0"));
    EXPECT_THAT(inWords(subcommands[2]),
                ElementsAre("PRINT", "DETAILS kind 0, value optional", "ROWS kind 9, option 1",
                            "SORT kind 28, option 0, BY, DESCENDING", "AGREEMENT kind 0, value optional",
                            "MEANDIFF kind 0, value optional", "PERCENTAGE kind 0, value optional"));
    EXPECT_THAT(inWords(subcommands[3]),
                ElementsAre("PLOT", "RATIO kind 0, value optional", "REFLINE kind 0, value optional",
                            "AGREEMENT_LIMITS kind 3, value optional, option 1", "CI_MEANDIFF kind 0, value optional"));
}

TEST(CommandDescriber, AllowsTheValuesInTheirOrder)
{
    Description host;
    host.describer.describe();
    const auto& subcommands = host.described().subcommands;
    EXPECT_THAT(subcommands[0].parameters[2].values, ElementsAre("YES", "NO"));
    EXPECT_THAT(subcommands[1].parameters[0].values, ElementsAre("ANALYSIS", "LISTWISE"));
    EXPECT_THAT(subcommands[1].parameters[1].values, ElementsAre("EXCLUDE", "INCLUDE"));
    EXPECT_THAT(subcommands[1].parameters[2].values, ElementsAre("FALSE", "TRUE"));
    EXPECT_THAT(subcommands[1].parameters[6].values, ElementsAre("FALSE", "TRUE"));
    EXPECT_THAT(subcommands[2].parameters[2].qualifiers[0].values,
                ElementsAre("MEASUREMENT", "DIFFERENCE", "RATIO", "MEAN"));
    EXPECT_THAT(subcommands[2].parameters[2].qualifiers[1].values, ElementsAre("TRUE", "FALSE"));
    EXPECT_THAT(subcommands[3].parameters[2].values, ElementsAre("CI"));

    const auto& limits = subcommands[1].parameters[3].values;
    ASSERT_EQ(limits.size(), 101U);
    EXPECT_EQ(limits[0] + limits[1] + limits[2], "TWOSDTHREESD1");
    EXPECT_EQ(limits.back(), "99");
}

// The second option on VARIABLE comes after the subcommand has taken its copy.
TEST(CommandDescriber, CallsTheHostInTheFixedOrderAndWithTheFixedFlags)
{
    Description host;
    host.describer.describe();
    const auto calls = tests::callsOf(host.traced.takeTrace(), {"ParamDescriptor::", "SubComDescriptor::Sub"});
    const std::vector<std::string> begin(calls.begin(), calls.begin() + 5);
    EXPECT_THAT(begin, ElementsAre(R"(SubComDescriptor::SubComDescriptor ["",1,false,false])",
                                   R"(ParamDescriptor::ParamDescriptor ["VARIABLE",16,true,true,3])",
                                   "ParamDescriptor::setQualifOption [0]",
                                   R"(ParamDescriptor::ParamDescriptor ["WITH",16,false,true,3])",
                                   "ParamDescriptor::setQualifOption [1]"));
    const auto callsAfter = [&calls](const std::string& first, std::ptrdiff_t count) {
        const auto found = std::find(calls.begin(), calls.end(), first);
        return std::vector<std::string>(found, found + count);
    };
    EXPECT_THAT(callsAfter(R"(ParamDescriptor::ParamDescriptor ["CILEVEL_AGREEMENT",7,false,true,0])", 5),
                ElementsAre(testing::_, "ParamDescriptor::setParamRequired [false]",
                            "ParamDescriptor::setQualifOption [0]", "ParamDescriptor::setLowerBoundary [0.0,1]",
                            "ParamDescriptor::setUpperBoundary [100.0,1]"));
    EXPECT_THAT(callsAfter(R"(ParamDescriptor::ParamDescriptor ["SORT",28,false,false,0])", 8),
                ElementsAre(testing::_, "ParamDescriptor::setQualifOption [0]",
                            R"(ParamDescriptor::ParamDescriptor ["BY",3,false,false,0])",
                            R"(ParamDescriptor::addStringValue ["MEASUREMENT"])",
                            R"(ParamDescriptor::addStringValue ["DIFFERENCE"])",
                            R"(ParamDescriptor::addStringValue ["RATIO"])",
                            R"(ParamDescriptor::addStringValue ["MEAN"])", "ParamDescriptor::addQualifDesc []"));
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
