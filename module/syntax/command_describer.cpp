#include "module/syntax/command_describer.h"

#include "module/diagnostics.h"

#include <deque>
#include <initializer_list>
#include <string>

namespace bldatman {

namespace {

using ParamSpec = UPSpecTypes::ParamSpec;

// What is agreed with the host are the integers. A kind of value is called after what it is used for here; of the
// others the meaning is the host's, and the name says the number.
const auto bareKeyword = static_cast<ParamSpec>(0);
const auto keywordFromList = static_cast<ParamSpec>(3);
const auto keywordOrLiteral = static_cast<ParamSpec>(4);
const auto number = static_cast<ParamSpec>(7);
const auto integer = static_cast<ParamSpec>(9);
const auto variableList = static_cast<ParamSpec>(16);
const auto qualifierList = static_cast<ParamSpec>(28);
const auto subComSpec1 = static_cast<UPSpecTypes::SubComSpec>(1);
const auto subComSpec2 = static_cast<UPSpecTypes::SubComSpec>(2);
const auto bracketOption0 = static_cast<UPSpecTypes::BracketOptions>(0);
const auto bracketOption3 = static_cast<UPSpecTypes::BracketOptions>(3);
const auto qualifOption0 = static_cast<UPSpecTypes::QualifOptions>(0);
const auto qualifOption1 = static_cast<UPSpecTypes::QualifOptions>(1);
const auto lowerBdryOption1 = static_cast<UPSpecTypes::LowerBdryOptions>(1);
const auto upperBdryOption1 = static_cast<UPSpecTypes::UpperBdryOptions>(1);

void addValues(ParamDescriptor& parameter, std::initializer_list<const char*> values)
{
    for (const char* value : values) {
        parameter.addStringValue(value);
    }
}

/// One subcommand on its way into the command's description. Its descriptors live until it has been added.
class Subcommand {
public:
    Subcommand(const char* name, UPSpecTypes::SubComSpec kind)
        : descriptor_(name, kind, false, false)
    {
    }

    ParamDescriptor& makeParameter(const char* name, ParamSpec kind, bool secondFlag = true)
    {
        return parameters_.emplace_back(name, kind, false, secondFlag, bracketOption0);
    }

    /// CRITERIA: an optional parameter that has a value.
    ParamDescriptor& makeCriterion(const char* name, ParamSpec kind)
    {
        ParamDescriptor& parameter = makeParameter(name, kind);
        parameter.setParamRequired(false);
        parameter.setQualifOption(qualifOption0);
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

    void addSwitch(const char* name) { add(makeSwitch(name, bareKeyword)); }

    void addKeywordCriterion(const char* name, std::initializer_list<const char*> values)
    {
        ParamDescriptor& parameter = makeCriterion(name, keywordFromList);
        addValues(parameter, values);
        add(parameter);
    }

    void addLevelCriterion(const char* name)
    {
        ParamDescriptor& parameter = makeCriterion(name, number);
        parameter.setLowerBoundary(0.0, lowerBdryOption1);
        parameter.setUpperBoundary(100.0, upperBdryOption1);
        add(parameter);
    }

    void addQualifier(ParamDescriptor& parameter, const char* name, std::initializer_list<const char*> values)
    {
        ParamDescriptor& qualifier = makeParameter(name, keywordFromList, false);
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
    ParamDescriptor& limits = criteria.makeCriterion("AGREEMENT_LIMITS", keywordOrLiteral);
    addValues(limits, {"TWOSD", "THREESD"});
    for (int coverage = 1; coverage <= 99; ++coverage) {
        limits.addStringValue(std::to_string(coverage));
    }
    criteria.add(limits);
}

void addRows(Subcommand& print)
{
    ParamDescriptor& rows = print.makeParameter("ROWS", integer);
    rows.setParamRequired(false);
    rows.setQualifOption(qualifOption1);
    print.add(rows);
}

void addSort(Subcommand& print)
{
    ParamDescriptor& sort = print.makeParameter("SORT", qualifierList, false);
    sort.setQualifOption(qualifOption0);
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

int BldatmanCommandDescriber::m_setSubCommandDescription(int subcommand)
{
    switch (subcommand) {
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
    SubComDescriptor global("", subComSpec1, false, false);

    ParamDescriptor variable("VARIABLE", variableList, true, true, bracketOption3);
    variable.setQualifOption(qualifOption0);
    global.addParamDesc(variable);

    ParamDescriptor with("WITH", variableList, false, true, bracketOption3);
    // On VARIABLE, of which the subcommand has its own copy already: WITH is to have no option of its own.
    variable.setQualifOption(qualifOption1);
    global.addParamDesc(with);

    ParamDescriptor paired("PAIRED", keywordFromList, false, true, bracketOption0);
    paired.setQualifOption(qualifOption1);
    addValues(paired, {"YES", "NO"});
    global.addParamDesc(paired);

    commandDescriptor_.addSubComDesc(global);
}

void BldatmanCommandDescriber::addCriteria()
{
    Subcommand criteria("CRITERIA", subComSpec1);
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
    Subcommand print("PRINT", subComSpec2);
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
    Subcommand plot("PLOT", subComSpec2);
    plot.addSwitch("RATIO");
    plot.addSwitch("REFLINE");
    ParamDescriptor& limits = plot.makeSwitch("AGREEMENT_LIMITS", keywordFromList);
    limits.setQualifOption(qualifOption1);
    addValues(limits, {"CI"});
    plot.add(limits);
    plot.addSwitch("CI_MEANDIFF");
    commandDescriptor_.addSubComDesc(plot.descriptor());
}

}  // namespace bldatman
