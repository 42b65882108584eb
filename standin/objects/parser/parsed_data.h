// What lies behind the host's objects of a parsed command.
#pragma once

#include "host/command_parser.h"
#include "standin/command/parsed_command.h"

#include <list>
#include <memory>
#include <string>
#include <vector>

struct ParamObj::Data {
    standin::ParsedParameter parameter;
};

struct SubComObj::Data {
    std::string name;
    std::list<ParamObj> parameters;
};

struct CommandSpec::Data {
    std::vector<std::unique_ptr<SubComObj>> subcommands;
};
