// What the host's parser objects hand to the module for a command.
#include "host/command_parser.h"

#include "host/procedure.h"
#include "standin/command/syntax_description.h"
#include "standin/session/session.h"
#include "tests/support/traced_session.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace standin {
namespace {

using UPSpecTypes::ParamSpec;
using Texts = std::vector<std::string>;

class ParsedCommand : public testing::Test {
protected:
    ParsedCommand()
    {
        host_.session.dataSet.variables[3].level = levels::ordinal;
        host_.session.dataSet.variables[4].level = levels::scale;
        SubComDescriptor leading("", UPSpecTypes::SubComSpec{1}, false, false);
        ParamDescriptor variables("INPUT", kinds::variableList, true, true, brackets::aroundVariables);
        variables.setParamRequired(false);
        leading.addParamDesc(variables);
        description_.addSubComDesc(leading);
        SubComDescriptor set("SET", UPSpecTypes::SubComSpec{2}, false, false);
        for (const ParamSpec kind :
             {kinds::keyword, kinds::keywordOrLiteral, kinds::number, kinds::integer, kinds::bareKeyword}) {
            ParamDescriptor parameter("P" + std::to_string(kind), kind, false, true, brackets::none);
            parameter.setValueRequired(false);
            set.addParamDesc(parameter);
            parameter.addStringValue("too late, the subcommand has its own copy");
        }
        ParamDescriptor sort("SORT", kinds::qualifierList, false, false, brackets::none);
        sort.addQualifDesc(ParamDescriptor("BY", kinds::keyword, false, false, brackets::none));
        set.addParamDesc(sort);
        description_.addSubComDesc(set);
    }

    int parse(const std::string& text)
    {
        host_.session.command = singleCommand(text);
        command_.emplace();
        QUVO_TokenSequence tokens(true);
        return UniversalParser(tokens, *command_, description_).getCommandSpecifications();
    }

    /// What each getter that has a value for a parameter gives.
    std::string valuesOf(const ParamObj* parameter) const
    {
        if (parameter == nullptr) {
            return "none";
        }
        std::string result;
        std::string text;
        bool isLiteral = false;
        int integer = 0;
        double number = 0;
        std::vector<ParamObj> qualifiers;
        const ParamDescriptor* sort = description_.getSubComDesc("SET")->getParamDesc("SORT");
        result += parameter->getUpStringGeneric(text) ? "upper " + text : "";
        result += parameter->getStringOrLiteral(text, isLiteral) ? (isLiteral ? " literal " : " keyword ") + text : "";
        result += parameter->getIntegerValue(integer) ? "integer " + std::to_string(integer) : "";
        result += parameter->getNumberValue(number) ? "number " + std::to_string(number) : "";
        const bool qualified = parameter->getStringQualList(qualifiers, *sort, nullptr);
        return result + (qualified ? "BY: " + valuesOf(ParamObj::getParamObj("BY", qualifiers)) : "");
    }

    /// The same for each parameter of a subcommand with that text.
    Texts valuesInSet(const std::string& text)
    {
        EXPECT_EQ(parse("INPUT=mini1 SET(" + text + ")"), 0);
        Texts values;
        for (const char* name : {"P3", "P4", "P7", "P9", "P0", "SORT"}) {
            values.push_back(valuesOf(command_->getSubComObj("SET")->getParamObj(name)));
        }
        return values;
    }

    /// Has a list of variables parsed and validated: what the host complains of, else the positions.
    Texts validated(const std::string& list)
    {
        EXPECT_EQ(parse("INPUT=" + list), 0);
        const ParamObj* input = command_->getSubComObj("")->getParamObj("INPUT");
        std::vector<QuvoVarName> variables{QuvoVarName("left over")};
        EXPECT_TRUE(input->getStringList(names_) && input->getVarList(variables));
        EXPECT_EQ(names_.size(), variables.size());
        VarSpecObj validator("INPUT", "", description_, &source_, true);
        Texts outcome;
        if (validator.ValidateVariables(variables, UPSpecTypes::RepeatVarOptions{0})) {
            for (const int position : validator.GetValidVarList()) {
                outcome.push_back(std::to_string(position));
            }
        }
        EXPECT_NE(outcome.empty(), complaints_.empty());
        return outcome.empty() ? std::exchange(complaints_, {}) : outcome;
    }

    tests::TracedSession host_{"wright1,group,mini1,mini2,noted;1,1,2,3,4;5,x,6,7,NA;8,y,9,1,n/a"};
    Texts& complaints_ = host_.session.complaints;
    ProcedureDataSource source_;
    CommandDescriptor description_{"WIDGET"};
    std::optional<CommandSpec> command_;
    Texts names_{"left over"};
};

TEST_F(ParsedCommand, GivesEachValueThroughTheGettersOfItsKind)
{
    EXPECT_EQ(valuesInSet("P3=Mixed P4=\"Mixed\" P7=2.5 P9=-3 P0 SORT(BY=mean)"),
              (Texts{"upper MIXED keyword Mixed", "upper MIXED literal Mixed", "number 2.500000", "integer -3", "",
                     "BY: upper MEAN keyword mean"}));
    EXPECT_EQ(command_->getSubComObj("SET")->getSubComExtName(), "SET");
    EXPECT_EQ(valuesInSet("P3 P9 SORT"), (Texts{"", "none", "none", "", "none", "BY: none"}));
    EXPECT_EQ(command_->getSubComObj("LOCK"), nullptr);
}

TEST_F(ParsedCommand, ExpandsRangesAndHasRefusedWhatIsNotThereOrNotInOrderOrNotNumeric)
{
    EXPECT_EQ(validated("mini1 wright1:mini1 mini2:mini2"), (Texts{"2", "0", "1", "2", "3"}));
    EXPECT_EQ(names_, (Texts{"mini1", "wright1", "group", "mini1", "mini2"}));
    EXPECT_EQ(validated("wright1:mini3 last:first"),
              (Texts{"variable \"mini3\" in INPUT does not exist; did you mean \"mini1\" or \"mini2\"?",
                     "variable \"last\" in INPUT does not exist", "variable \"first\" in INPUT does not exist"}));
    EXPECT_EQ(names_, (Texts{"wright1", "mini3", "last", "first"}));
    EXPECT_EQ(validated("mini2 mini2:wright1"),
              (Texts{"INPUT: the range mini2:wright1 runs backwards: wright1 stands before mini2 in the data"}));
    EXPECT_EQ(names_, (Texts{"mini2", "mini2", "wright1"}));
    EXPECT_EQ(validated("Mini2 wrigth1 mini1"),
              (Texts{"variable \"Mini2\" in INPUT does not exist; did you mean \"mini2\" or \"mini1\"?",
                     "variable \"wrigth1\" in INPUT does not exist; did you mean \"wright1\"?"}));
    EXPECT_EQ(validated("noted"),
              (Texts{"variable \"noted\" in INPUT is declared scale, but line 4 of the data holds \"n/a\"; "
                     "correct it, or leave the cell empty where a value is missing"}));
}

TEST_F(ParsedCommand, LeavesItToTheProcedureToMindTheLevel)
{
    EXPECT_EQ(validated("group"), Texts{"1"});
    ParserMessage message;
    message.NeedDepVarCont(QuvoVarName("group"), "INPUT", nullptr);
    message.NeedDepVarCont(QuvoVarName("mini2"), "INPUT", "(extra)");
    EXPECT_EQ(complaints_.at(0), "variable \"group\" in INPUT is not numeric: line 3 of the data holds \"x\"; correct "
                                 "it, or leave the cell empty where a value is missing");
    EXPECT_EQ(complaints_.at(1), "variable \"mini2\" in INPUT is ordinal; it must be scale here: if it is one, give it "
                                 "\"level\": \"scale\" in the dictionary (extra)");
}

TEST_F(ParsedCommand, TellsWhereAndWhyACommandIsRefused)
{
    EXPECT_NE(parse("INPUT=mini1\r\n\tSTE(P0);"), 0);
    EXPECT_EQ(complaints_, (Texts{"line 2, column 2: found \"STE\", expected SET\n    \tSTE(P0);\n    \t^"}));
    EXPECT_EQ(command_->getSubComObj(""), nullptr);
    EXPECT_NE(parse("SET()"), 0);  // the later mark that INPUT is not required counts for nothing
}

}  // namespace
}  // namespace standin
