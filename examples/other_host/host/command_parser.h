// The description of a command's syntax, the parse, what it found, and the check of the variables that it names.
//
// Descriptors are copied as they are added: the module goes on changing its own. What looks something up by its name
// returns null when there is none.
#pragma once

#include "host/data_source.h"

#include <cstdlib>
#include <type_traits>

// The integers alone are agreed, so they have no names here.
namespace UPSpecTypes {
enum ParamSpec : int {};
enum SubComSpec : int {};
enum BracketOptions : int {};
enum QualifOptions : int {};
enum LowerBdryOptions : int {};
enum UpperBdryOptions : int {};
enum RepeatVarOptions : int {};
}  // namespace UPSpecTypes

struct ParserMessage : other::Object {
    ParserMessage() { begin("ParserMessage"); }

    void SetCommandName(std::string command) { call("ParserMessage::SetCommandName", command); }
    void SetProcedureTitle(std::string title) { call("ParserMessage::SetProcedureTitle", title); }
    void NeedDepVarCont(QuvoVarName variable, std::string parameter, std::nullptr_t extra)
    {
        call("ParserMessage::NeedDepVarCont", parameter, extra);
        theHost.complaints.push_back(variable.name + " in " + parameter + " must be continuous");
    }
};

/// One parameter or qualifier; kind 16 is a list of variables. This host checks that keywords and their values are
/// known, and no more: the other kinds, the flags and the options mean nothing to it.
struct ParamDescriptor : other::Object {
    ParamDescriptor(std::string parameter, UPSpecTypes::ParamSpec valueKind, bool first, bool second, int brackets)
    {
        begin("ParamDescriptor", name = parameter, kind = valueKind, first, second, brackets);
    }

    void setParamRequired(bool required) { call("ParamDescriptor::setParamRequired", required); }
    void setValueRequired(bool value) { call("ParamDescriptor::setValueRequired", value); }
    void setQualifOption(UPSpecTypes::QualifOptions option) { call("ParamDescriptor::setQualifOption", option); }
    void setLowerBoundary(double bound, int option) { call("ParamDescriptor::setLowerBoundary", bound, option); }
    void setUpperBoundary(double bound, int option) { call("ParamDescriptor::setUpperBoundary", bound, option); }
    void addStringValue(std::string text) { call("ParamDescriptor::addStringValue", values.emplace_back(text)); }
    void addQualifDesc(ParamDescriptor one) { call("ParamDescriptor::addQualifDesc"), qualifiers.push_back(one); }

    int kind = 0;
    std::vector<std::string> values;  ///< none: any is allowed
    std::vector<ParamDescriptor> qualifiers;
};

/// The empty name is the leading part of the command, which has no parentheses.
struct SubComDescriptor : other::Object {
    SubComDescriptor(std::string subcommand, UPSpecTypes::SubComSpec kind, bool first, bool second)
    {
        begin("SubComDescriptor", name = subcommand, kind, first, second);
    }

    void addParamDesc(ParamDescriptor one) { call("SubComDescriptor::addParamDesc"), parameters.push_back(one); }
    ParamDescriptor* getParamDesc(std::string key) { return lookUp("SubComDescriptor::getParamDesc", parameters, key); }

    std::vector<ParamDescriptor> parameters;
};

struct CommandDescriptor : other::Object {
    explicit CommandDescriptor(std::string command) { begin("CommandDescriptor", name = command); }

    void addSubComDesc(SubComDescriptor one) { call("CommandDescriptor::addSubComDesc"), parts.push_back(one); }
    SubComDescriptor* getSubComDesc(std::string key) { return lookUp("CommandDescriptor::getSubComDesc", parts, key); }

    std::vector<SubComDescriptor> parts;
};

struct QUVO_TokenSequence : other::Object {
    explicit QUVO_TokenSequence(bool flag) { begin("QUVO_TokenSequence", flag); }
};

/// A parameter or a qualifier as the user gave it. A getter that returns false leaves something else in its argument.
struct ParamObj {
    bool getUpStringGeneric(std::string& value)
    {
        return fill("getUpStringGeneric", value, other::upperCase(word()), "?");
    }
    bool getStringOrLiteral(std::string& value, bool&) { return fill("getStringOrLiteral", value, word(), "?"); }
    bool getIntegerValue(int& value) { return fill("getIntegerValue", value, std::atoi(word().c_str()), -1); }
    bool getNumberValue(double& value) { return fill("getNumberValue", value, std::atof(word().c_str()), -1.0); }

    /// Both lists name the variables of `VarSpecObj::GetValidVarList`, one for one.
    bool getStringList(std::vector<std::string>& list) { return fill("getStringList", list, words, {"?"}); }
    bool getVarList(std::vector<QuvoVarName>& list) { return fill("getVarList", list, variables(), {}); }

    bool getStringQualList(std::vector<ParamObj>& list, ParamDescriptor& /*description*/, std::nullptr_t messages)
    {
        list = qualifiers;
        return call("ParamObj::getStringQualList", messages);
    }
    static ParamObj* getParamObj(std::string key, std::vector<ParamObj>& list)
    {
        return lookUp("ParamObj::getParamObj", list, key, list);
    }

    std::string word() const { return words.empty() ? "" : words[0]; }
    std::vector<QuvoVarName> variables() const { return {words.begin(), words.end()}; }

    template <class Value>
    bool fill(const std::string& getter, Value& target, const Value& value, const std::type_identity_t<Value>& garbage)
    {
        const bool given = call("ParamObj::" + getter) && !words.empty();
        target = given ? value : garbage;
        return given;
    }

    std::string name;
    std::vector<std::string> words;  ///< the value, or the names; none: it stands without a value
    std::vector<ParamObj> qualifiers;
};

struct SubComObj {
    ParamObj* getParamObj(std::string key) { return lookUp("SubComObj::getParamObj", parameters, key); }
    const char* getSubComExtName() { return call("SubComObj::getSubComExtName"), name.c_str(); }

    std::string name;
    std::vector<ParamObj> parameters;
};

struct CommandSpec : other::Object {
    CommandSpec() { begin("CommandSpec"); }

    SubComObj* getSubComObj(std::string key) { return lookUp("CommandSpec::getSubComObj", parts, key); }

    std::vector<SubComObj> parts;
};

struct UniversalParser : other::Object {
    UniversalParser(QUVO_TokenSequence&, CommandSpec& command, CommandDescriptor& description)
    {
        begin("UniversalParser"), parsed = &command, described = &description;
    }

    /// To the module anything but 0 is a refusal. Here 2 means that the command is wrong, -1 that the parse failed.
    virtual int getCommandSpecifications();

    CommandSpec* parsed = nullptr;
    CommandDescriptor* described = nullptr;
};

/// Keeps pointers to both texts, which the module leaves in place for as long as this lives.
struct VarSpecObj : other::Object {
    VarSpecObj(const std::string& parameter, const std::string& subcommand, CommandDescriptor&, QUVO_DataSource*,
               bool flag)
    {
        begin("VarSpecObj", *(list = &parameter), *(part = &subcommand), flag);
    }

    bool ValidateVariables(std::vector<QuvoVarName>& variables, UPSpecTypes::RepeatVarOptions repeats);
    std::vector<int>& GetValidVarList() { return call("VarSpecObj::GetValidVarList"), positions; }

    const std::string* list = nullptr;
    const std::string* part = nullptr;
    std::vector<int> positions;
};
