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

/// The parser's enumerations. They cross as integers, whose meaning is the host's; docs/another-host.md lists which.
namespace UPSpecTypes {

enum ParamSpec : int {};  ///< the kind of a parameter's value
enum SubComSpec : int {};
enum BracketOptions : int {};
enum QualifOptions : int {};
enum LowerBdryOptions : int {};
enum UpperBdryOptions : int {};
enum RepeatVarOptions : int {};

}  // namespace UPSpecTypes

/// Takes complaints to the user.
class ParserMessage {
public:
    ParserMessage();
    ~ParserMessage();
    ParserMessage(const ParserMessage&) = delete;
    ParserMessage& operator=(const ParserMessage&) = delete;

    /// The command and the procedure's title; complaints are made to an object without either, too.
    void SetCommandName(const std::string& name);
    void SetProcedureTitle(const std::string& title);

    /// Tells the user that `variable`, named in the list `parameter`, must be continuous. This procedure passes null
    /// for `extra`.
    void NeedDepVarCont(QuvoVarName variable, const char* parameter, const char* extra);

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// The description of one parameter or of one qualifier.
class ParamDescriptor {
public:
    /// @param name  upper case
    ///
    /// The meaning of the two flags and of the brackets is the host's.
    ParamDescriptor(const std::string& name, UPSpecTypes::ParamSpec kind, bool first, bool second,
                    UPSpecTypes::BracketOptions brackets);
    ParamDescriptor(const ParamDescriptor& other);
    ParamDescriptor& operator=(const ParamDescriptor&) = delete;
    ~ParamDescriptor();

    /// Whether the parameter, and its value, are required; a parameter without the call has the host's default.
    void setParamRequired(bool required);
    void setValueRequired(bool required);

    /// The meaning of the option is the host's; a parameter without the call has the host's default.
    void setQualifOption(UPSpecTypes::QualifOptions option);

    /// The bounds of a number; without the calls there is none. The meaning of the options is the host's.
    void setLowerBoundary(double bound, UPSpecTypes::LowerBdryOptions option);
    void setUpperBoundary(double bound, UPSpecTypes::UpperBdryOptions option);

    /// Adds one allowed value.
    void addStringValue(const std::string& value);

    /// Adds a qualifier, of which a copy is kept.
    void addQualifDesc(const ParamDescriptor& qualifier);

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// The description of one subcommand; the empty name is the leading part of the command.
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

/// The tokens of the command.
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

/// One parameter, or one qualifier, as the user gave it. Each getter returns true when it has filled its reference with
/// a value; on false the reference's content means nothing.
class ParamObj {
public:
    /// The value in upper case.
    bool getUpStringGeneric(std::string& value) const;

    /// The value, not converted to upper case. This procedure does not look at `isLiteral`.
    bool getStringOrLiteral(std::string& value, bool& isLiteral) const;

    bool getIntegerValue(int& value) const;
    bool getNumberValue(double& value) const;

    /// The names of a variable list: one for each position of `VarSpecObj::GetValidVarList`, in the same order.
    bool getStringList(std::vector<std::string>& names) const;

    /// The variables of a variable list, as the validator takes them.
    bool getVarList(std::vector<QuvoVarName>& variables) const;

    /// The qualifiers of this parameter. This procedure passes null for `messages`.
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

    /// The subcommand's external name, as the validator takes it.
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

    /// Parses. 0: `command` is filled. Anything else: failed, and the command ends.
    int getCommandSpecifications();

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// Checks the variables that a parameter names against a data source.
class VarSpecObj {
public:
    /// Keeps the references, those to the texts too, and the pointer. The flag's meaning is the host's; this procedure
    /// passes true.
    VarSpecObj(const std::string& parameter, const std::string& subcommand, const CommandDescriptor& description,
               QUVO_DataSource* source, bool flag);
    ~VarSpecObj();
    VarSpecObj(const VarSpecObj&) = delete;
    VarSpecObj& operator=(const VarSpecObj&) = delete;

    /// True when every variable exists; otherwise telling the user is up to this object. The option's meaning is the
    /// host's.
    bool ValidateVariables(const std::vector<QuvoVarName>& variables, UPSpecTypes::RepeatVarOptions repeats);

    /// The positions of the variables in the data source, in list order, after a successful validation.
    std::vector<int> GetValidVarList() const;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};
