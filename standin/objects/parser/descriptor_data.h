// What lies behind the descriptors of the contract.
#pragma once

#include "host/command_parser.h"
#include "standin/command/syntax_description.h"

#include <list>

struct ParamDescriptor::Data {
    standin::ParameterDescription description;
};

/// The descriptions serve the parser, the copies are handed out to the module.
struct SubComDescriptor::Data {
    standin::SubcommandDescription description;
    std::list<ParamDescriptor> copies;
};

struct CommandDescriptor::Data {
    standin::CommandDescription description;
    std::list<SubComDescriptor> copies;
};
