// The settings of one command: read once from the parsed command, read-only afterwards.
#pragma once

#include "module/settings/setting_records.h"
#include "module/settings/subcommand_records.h"

#include <memory>
#include <vector>

class CommandDescriptor;
class CommandSpec;
class ParserMessage;
class ProcedureDataSource;

namespace bldatman {

/// Two layers: what the parser delivered, per subcommand, and the typed records that everybody but the charts reads.
class BldatmanInputSetting {
public:
    /// Keeps the three references; reads nothing yet.
    BldatmanInputSetting(CommandSpec& command, CommandDescriptor& descriptor, ProcedureDataSource& source);
    ~BldatmanInputSetting();
    BldatmanInputSetting(const BldatmanInputSetting&) = delete;
    BldatmanInputSetting& operator=(const BldatmanInputSetting&) = delete;

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
    // The readers of the four subcommands; defined in settings_reader.cpp.
    bool get_Subcommand_Global();
    template <class SubCom>
    bool getVariables(SubCom& global);
    template <class SubCom>
    bool getWith(SubCom& global);
    void readColumns(const std::vector<int>& indices, std::vector<Column>& columns);
    void getCriteria();
    void getPlot();
    void getPrint();

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
    std::unique_ptr<ParserMessage> parserMessage_;  ///< never null
    BldatmanVariableSetting variableSetting_;
    BldatmanCriteriaSetting criteriaSetting_;
    BldatmanPrintSetting printSetting_;
};

}  // namespace bldatman
