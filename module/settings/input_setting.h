// The settings of one command: read once from the parsed command, read-only afterwards.
#pragma once

#include "host/command_parser.h"
#include "host/procedure.h"
#include "module/settings/setting_records.h"
#include "module/settings/subcommand_records.h"

#include <optional>
#include <vector>

namespace bldatman {

/// Two layers: what the parser delivered, per subcommand, and the typed records that everybody but the charts reads.
class BldatmanInputSetting {
public:
    /// Keeps the three references; reads nothing yet.
    BldatmanInputSetting(CommandSpec& command, CommandDescriptor& descriptor, ProcedureDataSource& source);

    /// Reads the four subcommands and the case values, then converts. 0: done; 1: failed, and reported on the standard
    /// error stream.
    int start();

    const BldatmanPlotSubcommand& plotSubcommand() const { return plotSubcommand_; }
    const BldatmanVariableSetting& variableSetting() const { return variableSetting_; }
    const BldatmanCriteriaSetting& criteriaSetting() const { return criteriaSetting_; }
    const BldatmanPrintSetting& printSetting() const { return printSetting_; }

    /// Reads subcommand 0 (variables), 1 (CRITERIA), 2 (PRINT) or 3 (PLOT). 0: done, 1: failed or no such number.
    int getSubcommand(int number);

private:
    using MeasurementLevel = QUVO_Variable_Enumerations::MeasurementLevel;

    // The readers of the four subcommands; defined in settings_reader.cpp.
    bool get_Subcommand_Global();
    bool getVariables(const SubComObj& global);
    bool getWith(const SubComObj& global);
    std::optional<std::vector<int>> validatedPositions(const char* parameter, const ParamObj& list,
                                                       const SubComObj& global);
    std::optional<MeasurementLevel> firstLevelNotScale(const char* parameter, const std::vector<int>& positions);
    void readColumns(const std::vector<int>& indices, std::vector<Column>& columns);

    void getCriteria();
    void getPlot();
    void getPrint();
    void getSort(const SubComObj& print, BldatmanPrintSubcommand& read) const;

    void convertSettings();

    BldatmanVariableSubcommand variableSubcommand_;
    BldatmanCriteriaSubcommand criteriaSubcommand_;
    BldatmanPlotSubcommand plotSubcommand_;
    BldatmanPrintSubcommand printSubcommand_;
    std::vector<int> variableIndices_;  ///< positions in the data source, in list order
    std::vector<int> withIndices_;
    CommandSpec& commandSpec_;
    CommandDescriptor& commandDescriptor_;
    ProcedureDataSource& dataSource_;
    ParserMessage parserMessage_;
    BldatmanVariableSetting variableSetting_;
    BldatmanCriteriaSetting criteriaSetting_;
    BldatmanPrintSetting printSetting_;
};

}  // namespace bldatman
