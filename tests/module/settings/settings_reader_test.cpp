#include "module/settings/input_setting.h"

#include "host/command_parser.h"
#include "host/procedure.h"
#include "runner/input/dictionary.h"
#include "tests/support/command_run.h"

#include <gmock/gmock.h>

namespace {

using testing::EndsWith;
using tests::Host;

const std::string parsingFailed =
    "Error: get_Subcommand_Global sub-command : \n"
    "BldatmanInputSetting::start: Standard exception: Error encountered while syntax parsing.\n"
    "bldatman_entry: Step3 Unknown error occurred.\n";

TEST(SettingsReader, ReportsTheLevelOfTheFirstVariableThatIsNotScale)
{
    Host host("a,b,sex;1,2,f;2,4,m");
    runner::applyDictionary(host.session.dataSet, R"({"variables": {"b": {"level": "ordinal"}}})", "d.json");
    EXPECT_THAT(host.run("VARIABLE=a b sex WITH=a").errors,
                EndsWith("\nget_Subcommand_Global: variable.GetMeasurementLevel(). 2\n" + parsingFailed));
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
    EXPECT_EQ(settings.getSubcommand(0), 1) << "the leading subcommand was not given";
    EXPECT_EQ(settings.start(), 1);
    EXPECT_EQ(errors.text(),
              "Error: Unknown sub-command : 4\nError: Unknown sub-command : -1\n"
              "Error: get_Subcommand_Global sub-command : \n"
              "Error: get_Subcommand_Global sub-command : \n"
              "BldatmanInputSetting::start: Standard exception: Error encountered while syntax parsing.\n");
}

}  // namespace
