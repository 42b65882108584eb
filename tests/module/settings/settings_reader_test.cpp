#include "module/settings/input_setting.h"

#include "host/command_parser.h"
#include "host/procedure.h"
#include "runner/input/dictionary.h"
#include "tests/support/command_run.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;
using tests::callsOf;
using tests::Host;

const std::string parsingFailed =
    "Error: get_Subcommand_Global sub-command : \n"
    "BldatmanInputSetting::start: Standard exception: Error encountered while syntax parsing.\n"
    "bldatman_entry: Step3 Unknown error occurred.\n";

/// The settings calls of a command, without the objects' coming and going.
std::vector<std::string> readerCalls(const tests::Outcome& outcome)
{
    auto calls = callsOf(outcome, {"CommandSpec::get", "SubComObj::", "ParamObj::", "CommandDescriptor::get",
                                   "SubComDescriptor::get", "VarSpecObj::Val", "VarSpecObj::Get", "VarSpecObj::VarSpec",
                                   "ACAProcDataSourceIter::ACA"});
    std::erase_if(calls, [](const auto& call) { return call.find('~') != std::string::npos; });
    return calls;
}

TEST(SettingsReader, StopsAtAnUnknownVariableOfEitherList)
{
    Host host("a,b;1,2;2,4");
    const std::string line = "get_Subcommand_Global: Error during ValidateVariables.\n";
    const auto variable = host.run("VARIABLE=x WITH=b PRINT(DETAILS)");
    EXPECT_THAT(variable.errors, StartsWith("HOST: "));
    EXPECT_THAT(variable.errors, EndsWith("\n" + line + parsingFailed));
    EXPECT_THAT(callsOf(variable, {"ACAProcDataSourceIter", R"(SubComObj::getParamObj	["WITH"])"}), IsEmpty());

    const auto with = host.run("VARIABLE=a WITH=x PAIRED=YES PRINT(DETAILS)");
    EXPECT_THAT(with.errors, EndsWith("\n" + line + parsingFailed));
    EXPECT_THAT(readerCalls(with).back(), "ParamObj::getUpStringGeneric []") << "PAIRED is still read, CRITERIA not";
    EXPECT_THAT(callsOf(with, {"CommandSpec::getSubComObj"}), ElementsAre(R"(CommandSpec::getSubComObj [""])"));
}

TEST(SettingsReader, ReportsTheLevelOfAVariableButNotOfAWithVariable)
{
    Host host("a,b,sex;1,2,f;2,4,m");
    runner::applyDictionary(host.session.dataSet, R"({"variables": {"b": {"level": "ordinal"}}})", "d.json");
    const auto variable = host.run("VARIABLE=a b sex WITH=a");
    EXPECT_THAT(variable.errors, StartsWith("HOST: "));
    EXPECT_THAT(variable.errors,
                EndsWith("\nget_Subcommand_Global: variable.GetMeasurementLevel(). 2\n" + parsingFailed));
    EXPECT_THAT(callsOf(variable, {"ParserMessage::Need"}),
                ElementsAre(R"(ParserMessage::NeedDepVarCont ["VARIABLE",null])"))
        << "the check stops at the first";
    EXPECT_THAT(callsOf(variable, {"ACAProcDataSourceIter"}), IsEmpty());

    const auto with = host.run("VARIABLE=a WITH=sex b");
    EXPECT_THAT(callsOf(with, {"ParserMessage::Need"}), ElementsAre(R"(ParserMessage::NeedDepVarCont ["WITH",null])"));
    ASSERT_EQ(with.errors.find('\n') + 1, with.errors.size() - parsingFailed.size()) << with.errors;
    EXPECT_THAT(with.errors, EndsWith(parsingFailed));
}

TEST(SettingsReader, KeepsTheRowsModulo65536)
{
    Host host("a,b;1,2;2,4;3,5");
    for (const auto& [rows, footnote] : {std::pair("ROWS=65538", "First 2 records are printed."),
                                         {"ROWS=-1", "First 3 records are printed."},
                                         {"ROWS=0", "First 0 records are printed."},
                                         {"", "First 3 records are printed."}}) {
        host.run(std::string("VARIABLE=a WITH=b PRINT(DETAILS ") + rows + ")");
        EXPECT_STREQ(host.object(0)["footnotes"][0].GetString(), footnote);
    }
}

TEST(SettingsReader, KnowsPlotLimitsWithAndWithoutTheirIntervals)
{
    Host host("a,b;1,2;2,4;3,5");
    const auto statementCount = [&host](const std::string& plot) {
        host.run("VARIABLE=a WITH=b " + plot);
        return host.object(0)["gpl"].Size();
    };
    EXPECT_EQ(statementCount(""), 27U);
    EXPECT_EQ(statementCount("PLOT(AGREEMENT_LIMITS)"), 29U);
    EXPECT_EQ(statementCount("PLOT(AGREEMENT_LIMITS=ci)"), 33U);
    EXPECT_EQ(statementCount("PLOT(AGREEMENT_LIMITS=CI REFLINE CI_MEANDIFF RATIO)"), 36U);
}

TEST(SettingsReader, TurnsAnExceptionIntoItsLineAndAFailure)
{
    for (const bool standard : {true, false}) {
        Host host("a,b;1,2;2,4");
        // Nothing inside the reader catches what the question for CRITERIA raises.
        const auto whole = host.run("VARIABLE=a WITH=b");
        const long call = tests::fallibleCallsUpTo(whole.trace, "CommandSpec::getSubComObj\t[\"CRITERIA\"]");
        host.session.monitor.failAtCall(call, [standard] {
            if (standard) {
                throw std::runtime_error("no luck");
            }
            throw 42;
        });
        EXPECT_EQ(host.run("VARIABLE=a WITH=b").errors,
                  std::string("BldatmanInputSetting::start: ") +
                      (standard ? "Standard exception: no luck" : "Unknown exception occurred.") +
                      "\nbldatman_entry: Step3 Unknown error occurred.\n");
    }
}

TEST(SettingsReader, KnowsNoOtherSubcommand)
{
    const standin::Session session;
    CommandSpec command;
    CommandDescriptor descriptor("X");
    ProcedureDataSource source;
    bldatman::BldatmanInputSetting settings(command, descriptor, source);
    const tests::CapturedErrors errors;
    EXPECT_EQ(settings.getSubcommand(4), 1);
    EXPECT_EQ(settings.getSubcommand(-1), 1);
    EXPECT_EQ(settings.start(), 1) << "the leading subcommand was not given";
    EXPECT_EQ(errors.text(),
              "Error: Unknown sub-command : 4\nError: Unknown sub-command : -1\n"
              "Error: get_Subcommand_Global sub-command : \n"
              "BldatmanInputSetting::start: Standard exception: Error encountered while syntax parsing.\n");
}

}  // namespace
