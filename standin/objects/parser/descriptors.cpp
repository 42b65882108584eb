#include "standin/objects/parser/descriptor_data.h"

#include "standin/border/host_call.h"

#include <algorithm>

using standin::HostCall;

namespace {

template <class Descriptor>
const Descriptor* findByName(const std::list<Descriptor>& descriptors, const std::string& name)
{
    const auto found = std::ranges::find_if(
        descriptors, [&name](const Descriptor& descriptor) { return descriptor.data->description.name == name; });
    return found == descriptors.end() ? nullptr : &*found;
}

}  // namespace

ParamDescriptor::ParamDescriptor(const std::string& name, UPSpecTypes::ParamSpec kind, bool first, bool second,
                                 UPSpecTypes::BracketOptions brackets)
{
    HostCall call(HostCall::Constructor{}, "ParamDescriptor::ParamDescriptor", name, kind, first, second, brackets);
    data = std::make_unique<Data>();
    data->description.name = name;
    data->description.kind = kind;
    data->description.required = first;  // as this host reads the flag
    data->description.brackets = brackets;
    call.creates(this);
}

ParamDescriptor::ParamDescriptor(const ParamDescriptor& other)
{
    HostCall call(HostCall::Constructor{}, "ParamDescriptor::ParamDescriptor");
    call.requireAlive(&other, "the descriptor to copy");
    data = std::make_unique<Data>(*other.data);
    call.creates(this);
}

ParamDescriptor::~ParamDescriptor()
{
    HostCall call(HostCall::Destructor{}, this, "ParamDescriptor::~ParamDescriptor");
    data.reset();
}

// Whether a parameter is required was settled by the constructor's flag; this mark is taken and changes nothing.
void ParamDescriptor::setParamRequired(bool required)
{
    HostCall call(this, "ParamDescriptor::setParamRequired", required);
}

void ParamDescriptor::setValueRequired(bool required)
{
    HostCall call(this, "ParamDescriptor::setValueRequired", required);
    data->description.valueRequired = required;
}

void ParamDescriptor::setQualifOption(UPSpecTypes::QualifOptions option)
{
    HostCall call(this, "ParamDescriptor::setQualifOption", option);
    data->description.qualifierOption = option;
}

void ParamDescriptor::setLowerBoundary(double bound, UPSpecTypes::LowerBdryOptions option)
{
    HostCall call(this, "ParamDescriptor::setLowerBoundary", bound, option);
    data->description.lowerBound = bound;
}

void ParamDescriptor::setUpperBoundary(double bound, UPSpecTypes::UpperBdryOptions option)
{
    HostCall call(this, "ParamDescriptor::setUpperBoundary", bound, option);
    data->description.upperBound = bound;
}

void ParamDescriptor::addStringValue(const std::string& value)
{
    HostCall call(this, "ParamDescriptor::addStringValue", value);
    data->description.values.push_back(value);
}

void ParamDescriptor::addQualifDesc(const ParamDescriptor& qualifier)
{
    HostCall call(this, "ParamDescriptor::addQualifDesc");
    call.requireAlive(&qualifier, "the qualifier");
    data->description.qualifiers.push_back(qualifier.data->description);
}

SubComDescriptor::SubComDescriptor(const std::string& name, UPSpecTypes::SubComSpec kind, bool first, bool second)
{
    HostCall call(HostCall::Constructor{}, "SubComDescriptor::SubComDescriptor", name, kind, first, second);
    data = std::make_unique<Data>();
    data->description.name = name;
    call.creates(this);
}

SubComDescriptor::SubComDescriptor(const SubComDescriptor& other)
{
    HostCall call(HostCall::Constructor{}, "SubComDescriptor::SubComDescriptor");
    call.requireAlive(&other, "the descriptor to copy");
    data = std::make_unique<Data>(*other.data);
    call.creates(this);
}

SubComDescriptor::~SubComDescriptor()
{
    HostCall call(HostCall::Destructor{}, this, "SubComDescriptor::~SubComDescriptor");
    data.reset();
}

void SubComDescriptor::addParamDesc(const ParamDescriptor& parameter)
{
    HostCall call(this, "SubComDescriptor::addParamDesc");
    call.requireAlive(&parameter, "the parameter");
    data->copies.push_back(parameter);
    data->description.parameters.push_back(parameter.data->description);
}

const ParamDescriptor* SubComDescriptor::getParamDesc(const std::string& name) const
{
    HostCall call(this, "SubComDescriptor::getParamDesc", name);
    return findByName(data->copies, name);
}

CommandDescriptor::CommandDescriptor(const std::string& name)
{
    HostCall call(HostCall::Constructor{}, "CommandDescriptor::CommandDescriptor", name);
    data = std::make_unique<Data>();
    data->description.name = name;
    call.creates(this);
}

CommandDescriptor::~CommandDescriptor()
{
    HostCall call(HostCall::Destructor{}, this, "CommandDescriptor::~CommandDescriptor");
    data.reset();
}

void CommandDescriptor::addSubComDesc(const SubComDescriptor& subcommand)
{
    HostCall call(this, "CommandDescriptor::addSubComDesc");
    call.requireAlive(&subcommand, "the subcommand");
    data->copies.push_back(subcommand);
    data->description.subcommands.push_back(subcommand.data->description);
}

const SubComDescriptor* CommandDescriptor::getSubComDesc(const std::string& name) const
{
    HostCall call(this, "CommandDescriptor::getSubComDesc", name);
    return findByName(data->copies, name);
}
