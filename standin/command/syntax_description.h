// A command's syntax as a procedure has described it; what the descriptors of the contract hold.
#pragma once

#include "host/command_parser.h"

#include <optional>
#include <string>
#include <vector>

namespace standin {

struct ParameterDescription {
    std::string name;
    UPSpecTypes::ParamSpec kind = UPSpecTypes::BareKeyword;
    bool required = false;
    UPSpecTypes::BracketOptions brackets = UPSpecTypes::NoBracket;
    bool valueRequired = true;
    std::optional<UPSpecTypes::QualifOptions> qualifierOption;  ///< kept as given; its meaning is not this host's
    std::optional<double> lowerBound;                           ///< inclusive
    std::optional<double> upperBound;                           ///< inclusive
    std::vector<std::string> values;                            ///< allowed ones; none: any of the kind
    std::vector<ParameterDescription> qualifiers;
};

struct SubcommandDescription {
    std::string name;  ///< empty: the leading part of the command
    std::vector<ParameterDescription> parameters;
};

struct CommandDescription {
    std::string name;
    std::vector<SubcommandDescription> subcommands;
};

}  // namespace standin
