#include "module/syntax/command_describer.h"

#include "module/diagnostics.h"

#include <deque>
#include <initializer_list>
#include <string>

namespace bldatman {

namespace {

using namespace UPSpecTypes;

void addValues(ParamDescriptor& parameter, std::initializer_list<const char*> values)
{
    for (const char* value : values) {
        parameter.addStringValue(value);
    }
}

/// One subcommand on its way into the command's description. Its descriptors live until it has been added.
class Subcommand {
public:
    Subcommand(const char* name, SubComSpec kind)
        : descriptor_(name, kind, false, false)
    {
    }

    ParamDescriptor& makeParameter(const char* name, ParamSpec kind, bool secondFlag = true)
    {
        return parameters_.emplace_back(name, kind, false, secondFlag, NoBracket);
    }

    /// CRITERIA: an optional parameter that has a value.
    ParamDescriptor& makeCriterion(const char* name, ParamSpec kind)
    {
        ParamDescriptor& parameter = makeParameter(name, kind);
        parameter.setParamRequired(false);
        parameter.setQualifOption(QualifOption0);
        return parameter;
    }

    /// PRINT and PLOT: an optional parameter that may stand without a value.
    ParamDescriptor& makeSwitch(const char* name, ParamSpec kind)
    {
        ParamDescriptor& parameter = makeParameter(name, kind);
        parameter.setParamRequired(false);
        parameter.setValueRequired(false);
        return parameter;
    }

    void add(const ParamDescriptor& parameter) { descriptor_.addParamDesc(parameter); }

    void addSwitch(const char* name) { add(makeSwitch(name, BareKeyword)); }

    void addKeywordCriterion(const char* name, std::initializer_list<const char*> values)
    {
        ParamDescriptor& parameter = makeCriterion(name, KeywordValue);
        addValues(parameter, values);
        add(parameter);
    }

    void addLevelCriterion(const char* name)
    {
        ParamDescriptor& parameter = makeCriterion(name, Number);
        parameter.setLowerBoundary(0.0, LowerBdryInclusive);
        parameter.setUpperBoundary(100.0, UpperBdryInclusive);
        add(parameter);
    }

    void addQualifier(ParamDescriptor& parameter, const char* name, std::initializer_list<const char*> values)
    {
        ParamDescriptor& qualifier = makeParameter(name, KeywordValue, false);
        addValues(qualifier, values);
        parameter.addQualifDesc(qualifier);
    }

    const SubComDescriptor& descriptor() const { return descriptor_; }

private:
    SubComDescriptor descriptor_;
    std::deque<ParamDescriptor> parameters_;
};

void addAgreementLimits(Subcommand& criteria)
{
    ParamDescriptor& limits = criteria.makeCriterion("AGREEMENT_LIMITS", KeywordOrLiteral);
    addValues(limits, {"TWOSD", "THREESD"});
    for (int coverage = 1; coverage <= 99; ++coverage) {
        limits.addStringValue(std::to_string(coverage));
    }
    criteria.add(limits);
}

void addRows(Subcommand& print)
{
    ParamDescriptor& rows = print.makeParameter("ROWS", Integer);
    rows.setParamRequired(false);
    rows.setQualifOption(QualifOption1);
    print.add(rows);
}

void addSort(Subcommand& print)
{
    ParamDescriptor& sort = print.makeParameter("SORT", QualifierList, false);
    sort.setQualifOption(QualifOption0);
    print.addQualifier(sort, "BY", {"MEASUREMENT", "DIFFERENCE", "RATIO", "MEAN"});
    print.addQualifier(sort, "DESCENDING", {"TRUE", "FALSE"});
    print.add(sort);
}

}  // namespace

BldatmanCommandDescriber::BldatmanCommandDescriber(QUVO_TokenSequence& tokens, ProcedureDataSource& source,
                                                   CommandDescriptor& descriptor)
    : commandDescriptor_(descriptor)
    , tokens_(tokens)
    , dataSource_(source)
{
    parserMessage_.SetCommandName("BLDATMAN");
    parserMessage_.SetProcedureTitle("Bland Altman Analysis");
}

int BldatmanCommandDescriber::describe()
{
    try {
        m_setSubCommandDescription(0);
        m_setSubCommandDescription(1);
        m_setSubCommandDescription(2);
        return m_setSubCommandDescription(3);
    } catch (...) {
        reportCurrentException("BldatmanCommandDescriber: ");
        return 1;
    }
}

int BldatmanCommandDescriber::m_setSubCommandDescription(int number)
{
    switch (number) {
    case 0:
        addVariables();
        return 0;
    case 1:
        addCriteria();
        return 0;
    case 2:
        addPrint();
        return 0;
    case 3:
        addPlot();
        return 0;
    default:
        reportLine("Error: BldatmanCommandDescriber::m_setSubCommandDescription - Unknown sub-command");
        return 1;
    }
}

// No parameter here is marked as not required, unlike those of the other subcommands: intended.
void BldatmanCommandDescriber::addVariables()
{
    SubComDescriptor global("", SubComSpec1, false, false);

    ParamDescriptor variable("VARIABLE", VariableList, true, true, VariableListBracket);
    variable.setQualifOption(QualifOption0);
    global.addParamDesc(variable);

    ParamDescriptor with("WITH", VariableList, false, true, VariableListBracket);
    // On VARIABLE, of which the subcommand has its own copy already: WITH is to have no option of its own.
    variable.setQualifOption(QualifOption1);
    global.addParamDesc(with);

    ParamDescriptor paired("PAIRED", KeywordValue, false, true, NoBracket);
    paired.setQualifOption(QualifOption1);
    addValues(paired, {"YES", "NO"});
    global.addParamDesc(paired);

    commandDescriptor_.addSubComDesc(global);
}

void BldatmanCommandDescriber::addCriteria()
{
    Subcommand criteria("CRITERIA", SubComSpec1);
    criteria.addKeywordCriterion("SCOPE", {"ANALYSIS", "LISTWISE"});
    criteria.addKeywordCriterion("CLASSMISSING", {"EXCLUDE", "INCLUDE"});
    criteria.addKeywordCriterion("LOGTRANSFORM", {"FALSE", "TRUE"});
    addAgreementLimits(criteria);
    criteria.addLevelCriterion("CILEVEL_AGREEMENT");
    criteria.addLevelCriterion("CILEVEL_MEANDIFF");
    criteria.addKeywordCriterion("PERCENTAGE", {"FALSE", "TRUE"});
    commandDescriptor_.addSubComDesc(criteria.descriptor());
}

void BldatmanCommandDescriber::addPrint()
{
    Subcommand print("PRINT", SubComSpec2);
    print.addSwitch("DETAILS");
    addRows(print);
    addSort(print);
    print.addSwitch("AGREEMENT");
    print.addSwitch("MEANDIFF");
    print.addSwitch("PERCENTAGE");
    commandDescriptor_.addSubComDesc(print.descriptor());
}

void BldatmanCommandDescriber::addPlot()
{
    Subcommand plot("PLOT", SubComSpec2);
    plot.addSwitch("RATIO");
    plot.addSwitch("REFLINE");
    ParamDescriptor& limits = plot.makeSwitch("AGREEMENT_LIMITS", KeywordValue);
    limits.setQualifOption(QualifOption1);
    addValues(limits, {"CI"});
    plot.add(limits);
    plot.addSwitch("CI_MEANDIFF");
    commandDescriptor_.addSubComDesc(plot.descriptor());
}

}  // namespace bldatman
