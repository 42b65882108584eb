#include "module/settings/input_setting.h"

#include "host/command_parser.h"
#include "module/diagnostics.h"

#include <stdexcept>
#include <string>

namespace bldatman {

BldatmanInputSetting::BldatmanInputSetting(CommandSpec& command, CommandDescriptor& descriptor,
                                           ProcedureDataSource& source)
    : commandSpec_(command)
    , commandDescriptor_(descriptor)
    , dataSource_(source)
    , parserMessage_(std::make_unique<ParserMessage>())
{
}

BldatmanInputSetting::~BldatmanInputSetting() = default;

int BldatmanInputSetting::start()
{
    constexpr int subcommandCount = 4;
    try {
        for (int number = 0; number < subcommandCount; ++number) {
            if (getSubcommand(number) != 0) {
                throw std::runtime_error("Error encountered while syntax parsing.");
            }
        }
        convertSettings();
        return 0;
    } catch (...) {
        reportCurrentException("BldatmanInputSetting::start: ");
        return 1;
    }
}

int BldatmanInputSetting::getSubcommand(int number)
{
    switch (number) {
    case 0:
        if (!get_Subcommand_Global()) {
            reportLine("Error: get_Subcommand_Global sub-command : ");  // nothing after the colon: intended
            return 1;
        }
        return 0;
    case 1:
        getCriteria();
        return 0;
    case 2:
        getPrint();
        return 0;
    case 3:
        getPlot();
        return 0;
    default:
        reportLine("Error: Unknown sub-command : " + std::to_string(number));
        return 1;
    }
}

void BldatmanInputSetting::convertSettings()
{
    variableSetting_ = BldatmanVariableSetting(variableSubcommand_);
    criteriaSetting_ = BldatmanCriteriaSetting(criteriaSubcommand_);
    printSetting_ = BldatmanPrintSetting(printSubcommand_);
}

}  // namespace bldatman
