// What the host's parser found: the command, its subcommands, their parameters.
#include "standin/objects/parser/parsed_data.h"

#include "standin/border/host_call.h"
#include "standin/command/variable_ranges.h"
#include "standin/objects/data/variable_data.h"
#include "standin/session/session.h"
#include "text/wording.h"

#include <algorithm>
#include <utility>
#include <variant>

using standin::HostCall;
using standin::ParsedParameter;

ParamObj::ParamObj(std::unique_ptr<Data> made)
{
    HostCall call(HostCall::Constructor{}, "ParamObj::ParamObj");
    data = std::move(made);
    call.creates(this);
}

ParamObj::ParamObj(const ParamObj& other)
{
    HostCall call(HostCall::Constructor{}, "ParamObj::ParamObj");
    call.requireAlive(&other, "the parameter to copy");
    data = std::make_unique<Data>(*other.data);
    call.creates(this);
}

ParamObj& ParamObj::operator=(const ParamObj& other)
{
    HostCall call(this, "ParamObj::operator=");
    if (this != &other) {
        *data = *other.data;
    }
    return *this;
}

ParamObj::~ParamObj()
{
    HostCall call(HostCall::Destructor{}, this, "ParamObj::~ParamObj");
    data.reset();
}

namespace {

/// The value of a parameter if it is of that type, else null.
template <class Value>
const Value* valueAs(const ParamObj::Data& data)
{
    return std::get_if<Value>(&data.parameter.value);
}

using VariableItems = std::vector<standin::VariableItem>;

std::vector<standin::ListedVariable> expanded(const VariableItems& items)
{
    return standin::expandRanges(items, standin::Session::current().dataSet);
}

}  // namespace

bool ParamObj::getUpStringGeneric(std::string& value) const
{
    HostCall call(this, "ParamObj::getUpStringGeneric");
    const auto* keyword = valueAs<standin::KeywordText>(*data);
    if (keyword == nullptr) {
        return false;
    }
    value = text::upperCase(keyword->text);
    return true;
}

bool ParamObj::getStringOrLiteral(std::string& value, bool& isLiteral) const
{
    HostCall call(this, "ParamObj::getStringOrLiteral");
    const auto* keyword = valueAs<standin::KeywordText>(*data);
    if (keyword == nullptr) {
        return false;
    }
    value = keyword->text;
    isLiteral = keyword->isLiteral;
    return true;
}

bool ParamObj::getIntegerValue(int& value) const
{
    HostCall call(this, "ParamObj::getIntegerValue");
    const auto* integer = valueAs<int>(*data);
    if (integer == nullptr) {
        return false;
    }
    value = *integer;
    return true;
}

bool ParamObj::getNumberValue(double& value) const
{
    HostCall call(this, "ParamObj::getNumberValue");
    const auto* number = valueAs<double>(*data);
    if (number == nullptr) {
        return false;
    }
    value = *number;
    return true;
}

bool ParamObj::getStringList(std::vector<std::string>& names) const
{
    HostCall call(this, "ParamObj::getStringList");
    const auto* items = valueAs<VariableItems>(*data);
    if (items == nullptr) {
        return false;
    }
    names.clear();
    for (const standin::ListedVariable& variable : expanded(*items)) {
        names.push_back(variable.name);
    }
    return true;
}

bool ParamObj::getVarList(std::vector<QuvoVarName>& variables) const
{
    HostCall call(this, "ParamObj::getVarList");
    const auto* items = valueAs<VariableItems>(*data);
    if (items == nullptr) {
        return false;
    }
    variables.clear();
    for (const standin::ListedVariable& variable : expanded(*items)) {
        variables.emplace_back(variable.name.c_str());
        variables.back().data->refusal = variable.refusal;
    }
    return true;
}

bool ParamObj::getStringQualList(std::vector<ParamObj>& qualifiers, const ParamDescriptor& description,
                                 ParserMessage* messages) const
{
    HostCall call(this, "ParamObj::getStringQualList", description, messages);
    call.requireAlive(&description, "the description");
    const auto* parsed = valueAs<std::vector<ParsedParameter>>(*data);
    if (parsed == nullptr) {
        return false;
    }
    qualifiers.clear();
    for (const ParsedParameter& qualifier : *parsed) {
        qualifiers.emplace_back(std::make_unique<Data>(Data{qualifier}));
    }
    return true;
}

const ParamObj* ParamObj::getParamObj(const std::string& name, const std::vector<ParamObj>& qualifiers)
{
    HostCall call(nullptr, "ParamObj::getParamObj", name, qualifiers);
    const auto found = std::ranges::find_if(
        qualifiers, [&name](const ParamObj& qualifier) { return qualifier.data->parameter.name == name; });
    return found == qualifiers.end() ? nullptr : &*found;
}

SubComObj::SubComObj(std::unique_ptr<Data> made)
{
    HostCall call(HostCall::Constructor{}, "SubComObj::SubComObj");
    data = std::move(made);
    call.creates(this);
}

SubComObj::~SubComObj()
{
    HostCall call(HostCall::Destructor{}, this, "SubComObj::~SubComObj");
    data.reset();
}

const ParamObj* SubComObj::getParamObj(const std::string& name) const
{
    HostCall call(this, "SubComObj::getParamObj", name);
    const auto found = std::ranges::find_if(
        data->parameters, [&name](const ParamObj& parameter) { return parameter.data->parameter.name == name; });
    return found == data->parameters.end() ? nullptr : &*found;
}

std::string SubComObj::getSubComExtName() const
{
    HostCall call(this, "SubComObj::getSubComExtName");
    return data->name;
}

CommandSpec::CommandSpec()
{
    HostCall call(HostCall::Constructor{}, "CommandSpec::CommandSpec");
    data = std::make_unique<Data>();
    call.creates(this);
}

CommandSpec::~CommandSpec()
{
    HostCall call(HostCall::Destructor{}, this, "CommandSpec::~CommandSpec");
    data.reset();
}

const SubComObj* CommandSpec::getSubComObj(const std::string& name) const
{
    HostCall call(this, "CommandSpec::getSubComObj", name);
    const auto found = std::ranges::find_if(data->subcommands,
                                            [&name](const auto& subcommand) { return subcommand->data->name == name; });
    return found == data->subcommands.end() ? nullptr : found->get();
}
