// Contract of the host's command parser: the description of a command's syntax, the parse, what the parse found, and
// the check of the variables that it names.
//
// Objects returned by pointer belong to the object that returned them. Descriptors handed over by reference are copied:
// what the caller does with its own afterwards changes nothing in the receiver.
#pragma once

#include "host/data_source.h"

#include <memory>
#include <string>
#include <vector>

/// The parser's enumerations. They cross as integers; where the host keeps a meaning to itself, the name says only
/// the number.
namespace UPSpecTypes {

/// The kind of a parameter's value, and with which operation of `ParamObj` it is read back.
enum ParamSpec : int {
    BareKeyword = 0,       ///< no value; presence alone counts
    KeywordValue = 3,      ///< one of the allowed values: `getUpStringGeneric`
    KeywordOrLiteral = 4,  ///< one of the allowed values, as keyword or literal: `getStringOrLiteral`
    Number = 7,            ///< `getNumberValue`
    Integer = 9,           ///< `getIntegerValue`
    VariableList = 16,     ///< `getStringList`, `getVarList`
    QualifierList = 28,    ///< `getStringQualList`
};

enum SubComSpec : int {
    SubComSpec1 = 1,
    SubComSpec2 = 2,
};

enum BracketOptions : int {
    NoBracket = 0,
    VariableListBracket = 3,  ///< the value may stand in parentheses
};

enum QualifOptions : int {
    QualifOption0 = 0,
    QualifOption1 = 1,
};

enum LowerBdryOptions : int { LowerBdryInclusive = 1 };
enum UpperBdryOptions : int { UpperBdryInclusive = 1 };

enum RepeatVarOptions : int { RepeatVarAllowed = 0 };

}  // namespace UPSpecTypes

/// Where the host's parser and validator leave their complaints to the user.
class ParserMessage {
public:
    ParserMessage();
    ~ParserMessage();
    ParserMessage(const ParserMessage&) = delete;
    ParserMessage& operator=(const ParserMessage&) = delete;

    /// The command that complaints are about; a message object works without it.
    void SetCommandName(const std::string& name);

    /// The procedure's title for people; a message object works without it.
    void SetProcedureTitle(const std::string& title);

    /// Tells the user that `variable`, named in the list `parameter`, must be continuous. `extra` may be null.
    void NeedDepVarCont(QuvoVarName variable, const char* parameter, const char* extra);

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// The description of one parameter or of one qualifier.
class ParamDescriptor {
public:
    /// @param name      upper case
    /// @param required  the command is refused without this parameter
    /// @param second    a flag whose meaning is the host's
    ParamDescriptor(const std::string& name, UPSpecTypes::ParamSpec kind, bool required, bool second,
                    UPSpecTypes::BracketOptions brackets);
    ParamDescriptor(const ParamDescriptor& other);
    ParamDescriptor& operator=(const ParamDescriptor&) = delete;
    ~ParamDescriptor();

    /// Marks the parameter as required or not, beside the constructor's flag.
    void setParamRequired(bool required);

    /// False lets the parameter stand without a value.
    void setValueRequired(bool required);

    /// The meaning of the option is the host's; a parameter without the call has the host's default.
    void setQualifOption(UPSpecTypes::QualifOptions option);

    /// The smallest and the largest number allowed; without the calls there is no bound.
    void setLowerBoundary(double bound, UPSpecTypes::LowerBdryOptions option);
    void setUpperBoundary(double bound, UPSpecTypes::UpperBdryOptions option);

    /// Adds one allowed value; where there is none, any value of the kind is allowed.
    void addStringValue(const std::string& value);

    /// Adds a qualifier, of which a copy is kept.
    void addQualifDesc(const ParamDescriptor& qualifier);

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// The description of one subcommand; the empty name is the leading part of the command, which has no parentheses.
class SubComDescriptor {
public:
    /// The meaning of the two flags is the host's; this procedure passes false twice.
    SubComDescriptor(const std::string& name, UPSpecTypes::SubComSpec kind, bool first, bool second);
    SubComDescriptor(const SubComDescriptor& other);
    SubComDescriptor& operator=(const SubComDescriptor&) = delete;
    ~SubComDescriptor();

    /// Adds a parameter, of which a copy is kept.
    void addParamDesc(const ParamDescriptor& parameter);

    /// The copy that `addParamDesc` took, or null when there is none of that name.
    const ParamDescriptor* getParamDesc(const std::string& name) const;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// The description of a command: its subcommands in the order in which they were added.
class CommandDescriptor {
public:
    /// @param name  the command's name, upper case
    explicit CommandDescriptor(const std::string& name);
    ~CommandDescriptor();
    CommandDescriptor(const CommandDescriptor&) = delete;
    CommandDescriptor& operator=(const CommandDescriptor&) = delete;

    /// Adds a subcommand, of which a copy is kept.
    void addSubComDesc(const SubComDescriptor& subcommand);

    /// The copy that `addSubComDesc` took, or null when there is none of that name.
    const SubComDescriptor* getSubComDesc(const std::string& name) const;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// What a parser reads from.
class QUVO_TokenSequenceBase {
public:
    virtual ~QUVO_TokenSequenceBase() = default;
};

/// The tokens of the command that the user has given.
class QUVO_TokenSequence : public QUVO_TokenSequenceBase {
public:
    /// The flag's meaning is the host's; this procedure passes true.
    explicit QUVO_TokenSequence(bool flag);
    ~QUVO_TokenSequence() override;
    QUVO_TokenSequence(const QUVO_TokenSequence&) = delete;
    QUVO_TokenSequence& operator=(const QUVO_TokenSequence&) = delete;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// One parameter, or one qualifier, as the user gave it. Each getter returns true and fills its reference when a value
/// of its kind was given; on false the reference's content means nothing.
class ParamObj {
public:
    /// The value in upper case.
    bool getUpStringGeneric(std::string& value) const;

    /// The value as it stands; `isLiteral` tells whether it was written as a literal.
    bool getStringOrLiteral(std::string& value, bool& isLiteral) const;

    /// An integer, as the parser checked it against the description.
    bool getIntegerValue(int& value) const;

    /// A number within the bounds of the description.
    bool getNumberValue(double& value) const;

    /// The names of a variable list, ranges expanded, in command order.
    bool getStringList(std::vector<std::string>& names) const;

    /// The same list as variable names, one for one.
    bool getVarList(std::vector<QuvoVarName>& variables) const;

    /// The qualifiers of this parameter. `messages` may be null.
    bool getStringQualList(std::vector<ParamObj>& qualifiers, const ParamDescriptor& description,
                           ParserMessage* messages) const;

    /// Finds a qualifier by its name; null when it was not given. The result points into `qualifiers`.
    static const ParamObj* getParamObj(const std::string& name, const std::vector<ParamObj>& qualifiers);

    ParamObj(const ParamObj& other);
    ParamObj& operator=(const ParamObj& other);
    ~ParamObj();

    struct Data;                                    ///< the host's own
    explicit ParamObj(std::unique_ptr<Data> made);  ///< for the host alone
    std::unique_ptr<Data> data;
};

/// One subcommand as the user gave it.
class SubComObj {
public:
    /// The parameter of that name, or null when it was not given.
    const ParamObj* getParamObj(const std::string& name) const;

    /// The name under which users know the subcommand.
    std::string getSubComExtName() const;

    struct Data;                                     ///< the host's own
    explicit SubComObj(std::unique_ptr<Data> made);  ///< for the host alone
    SubComObj(const SubComObj&) = delete;
    SubComObj& operator=(const SubComObj&) = delete;
    ~SubComObj();
    std::unique_ptr<Data> data;
};

/// A parsed command; empty until a parser has filled it.
class CommandSpec {
public:
    CommandSpec();
    ~CommandSpec();
    CommandSpec(const CommandSpec&) = delete;
    CommandSpec& operator=(const CommandSpec&) = delete;

    /// The subcommand of that name, or null when it was not given.
    const SubComObj* getSubComObj(const std::string& name) const;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// Checks a command's tokens against its description.
class UniversalParser {
public:
    /// Keeps references to all three; `command` is filled by the parse.
    UniversalParser(QUVO_TokenSequenceBase& tokens, CommandSpec& command, const CommandDescriptor& description);
    ~UniversalParser();
    UniversalParser(const UniversalParser&) = delete;
    UniversalParser& operator=(const UniversalParser&) = delete;

    /// Parses. 0: `command` is filled. Anything else: refused, and the user has been told why.
    int getCommandSpecifications();

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// Checks the variables that a parameter names against a data source.
class VarSpecObj {
public:
    /// Keeps the references and the pointer. The flag's meaning is the host's; this procedure passes true.
    VarSpecObj(const std::string& parameter, const std::string& subcommand, const CommandDescriptor& description,
               QUVO_DataSource* source, bool flag);
    ~VarSpecObj();
    VarSpecObj(const VarSpecObj&) = delete;
    VarSpecObj& operator=(const VarSpecObj&) = delete;

    /// True when every variable exists; otherwise the user has been told which does not.
    bool ValidateVariables(const std::vector<QuvoVarName>& variables, UPSpecTypes::RepeatVarOptions repeats);

    /// The positions of the variables in the data source, in list order, after a successful validation.
    std::vector<int> GetValidVarList() const;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};
