// The four subcommand readers of the settings. The order of the host calls is part of what is promised here: a host
// that traces them sees each subcommand's keywords asked for in this order.
//
// What the host hands out may be constant or not, and its getters to match: nothing here asks for either.
#include "host/command_parser.h"
#include "host/procedure.h"
#include "module/data/case_reader.h"
#include "module/diagnostics.h"
#include "module/settings/input_setting.h"
#include "module/settings/keyword_reader.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace bldatman {

namespace {

const auto repeatVarOption0 = static_cast<UPSpecTypes::RepeatVarOptions>(0);
const auto levelScale = static_cast<QUVO_Variable_Enumerations::MeasurementLevel>(3);

template <class Param>
std::vector<std::string> readNames(Param* list)
{
    std::vector<std::string> names;
    if (list != nullptr) {
        list->getStringList(names);
    }
    return names;
}

/// The positions of the listed variables in the data source; nothing, and a line, when the host does not know one.
template <class Param, class SubCom>
std::optional<std::vector<int>> validatedPositions(const std::string& parameter, Param& list, SubCom& global,
                                                   CommandDescriptor& descriptor, ProcedureDataSource& source)
{
    std::vector<QuvoVarName> variables;
    list.getVarList(variables);
    const std::string subcommand = global.getSubComExtName();  // both texts outlive the validator
    VarSpecObj validator(parameter, subcommand, descriptor, &source, true);
    if (!validator.ValidateVariables(variables, repeatVarOption0)) {
        reportLine("get_Subcommand_Global: Error during ValidateVariables.");
        return std::nullopt;
    }
    return validator.GetValidVarList();
}

/// The level of the first variable that is not scale, of which the host is told; nothing when all are.
std::optional<int> firstLevelNotScale(const char* parameter, const std::vector<int>& positions,
                                      ProcedureDataSource& source, ParserMessage& message)
{
    for (const int position : positions) {
        QUVO_Variable& variable = source.GetVariable(position);
        const auto level = variable.GetMeasurementLevel();
        if (level != levelScale) {
            message.NeedDepVarCont(QuvoVarName(variable.GetName()), parameter, nullptr);
            return static_cast<int>(level);
        }
    }
    return std::nullopt;
}

/// SORT with its qualifiers; without SORT the key and "NA" stay.
template <class SubCom>
void readSort(SubCom& print, CommandDescriptor& descriptor, BldatmanPrintSubcommand& read)
{
    auto* sort = print.getParamObj("SORT");
    if (sort == nullptr) {
        return;
    }
    auto* printDescription = descriptor.getSubComDesc("PRINT");
    auto* sortDescription = printDescription != nullptr ? printDescription->getParamDesc("SORT") : nullptr;
    std::vector<ParamObj> qualifiers;
    if (sortDescription == nullptr || !sort->getStringQualList(qualifiers, *sortDescription, nullptr)) {
        return;
    }
    read.sortBy = readKeyword(ParamObj::getParamObj("BY", qualifiers), "MEASUREMENT", LetterCase::Upper);
    read.descending = readKeyword(ParamObj::getParamObj("DESCENDING", qualifiers), "TRUE", LetterCase::Upper);
}

}  // namespace

template <class SubCom>
bool BldatmanInputSetting::getVariables(SubCom& global)
{
    variableSubcommand_.variableNames = readNames(global.getParamObj("VARIABLE"));
    auto* list = global.getParamObj("VARIABLE");
    const auto positions =
        list != nullptr ? validatedPositions("VARIABLE", *list, global, commandDescriptor_, dataSource_) : std::nullopt;
    if (!positions) {
        return false;
    }
    if (const auto level = firstLevelNotScale("VARIABLE", *positions, dataSource_, *parserMessage_)) {
        reportLine("get_Subcommand_Global: variable.GetMeasurementLevel(). " + std::to_string(*level));
        return false;
    }
    variableIndices_ = *positions;
    readColumns(variableIndices_, variableSubcommand_.variableColumns);
    return true;
}

// A variable that is not scale is reported to the host as for VARIABLE, but writes no line of its own: intended.
template <class SubCom>
bool BldatmanInputSetting::getWith(SubCom& global)
{
    variableSubcommand_.withNames = readNames(global.getParamObj("WITH"));
    auto* list = global.getParamObj("WITH");
    if (list == nullptr) {
        variableSubcommand_.withNames = variableSubcommand_.variableNames;
        variableSubcommand_.withColumns = variableSubcommand_.variableColumns;
        return true;
    }
    const auto positions = validatedPositions("WITH", *list, global, commandDescriptor_, dataSource_);
    if (!positions || firstLevelNotScale("WITH", *positions, dataSource_, *parserMessage_).has_value()) {
        return false;
    }
    withIndices_ = *positions;
    readColumns(withIndices_, variableSubcommand_.withColumns);
    return true;
}

bool BldatmanInputSetting::get_Subcommand_Global()
{
    auto* global = commandSpec_.getSubComObj("");
    if (global == nullptr || !getVariables(*global)) {
        return false;
    }
    const bool complete = getWith(*global);
    // PAIRED is read after a failure of WITH as well.
    variableSubcommand_.paired = readKeyword(global->getParamObj("PAIRED"), "NO", LetterCase::Upper);
    return complete;
}

void BldatmanInputSetting::readColumns(const std::vector<int>& indices, std::vector<Column>& columns)
{
    readCaseColumns(indices, dataSource_, columns);
}

void BldatmanInputSetting::getCriteria()
{
    auto* criteria = commandSpec_.getSubComObj("CRITERIA");
    if (criteria == nullptr) {
        return;
    }
    BldatmanCriteriaSubcommand& read = criteriaSubcommand_;
    read.scope = readKeyword(criteria->getParamObj("SCOPE"), "ANALYSIS", LetterCase::Upper);
    read.classMissing = readKeyword(criteria->getParamObj("CLASSMISSING"), "EXCLUDE", LetterCase::Upper);
    read.logTransform = readKeyword(criteria->getParamObj("LOGTRANSFORM"), "FALSE", LetterCase::Upper);
    read.agreementLimits = readKeyword(criteria->getParamObj("AGREEMENT_LIMITS"), "95", LetterCase::AsWritten);
    read.ciLevelAgreement = readNumber(criteria->getParamObj("CILEVEL_AGREEMENT"), 95.0);
    read.ciLevelMeanDiff = readNumber(criteria->getParamObj("CILEVEL_MEANDIFF"), 95.0);
    read.percentage = readKeyword(criteria->getParamObj("PERCENTAGE"), "FALSE", LetterCase::Upper);
}

void BldatmanInputSetting::getPlot()
{
    auto* plot = commandSpec_.getSubComObj("PLOT");
    if (plot == nullptr) {
        return;
    }
    BldatmanPlotSubcommand& read = plotSubcommand_;
    read.ratio = plot->getParamObj("RATIO") != nullptr;
    read.refLine = plot->getParamObj("REFLINE") != nullptr;
    if (auto* limits = plot->getParamObj("AGREEMENT_LIMITS")) {
        read.agreementLimits = true;
        read.agreementLimitsCi = readKeyword(limits, "", LetterCase::Upper) == "CI";
    }
    read.ciMeanDiff = plot->getParamObj("CI_MEANDIFF") != nullptr;
}

void BldatmanInputSetting::getPrint()
{
    auto* print = commandSpec_.getSubComObj("PRINT");
    if (print == nullptr) {
        return;
    }
    BldatmanPrintSubcommand read;
    read.details = presence(print->getParamObj("DETAILS"));
    read.rows = static_cast<std::uint16_t>(readInteger(print->getParamObj("ROWS"), 10));
    readSort(*print, commandDescriptor_, read);
    read.agreement = presence(print->getParamObj("AGREEMENT"));
    read.meanDiff = presence(print->getParamObj("MEANDIFF"));
    read.percentage = readKeyword(print->getParamObj("PERCENTAGE"), "TRUE", LetterCase::Upper);
    printSubcommand_ = read;
}

}  // namespace bldatman
