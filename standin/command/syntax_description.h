// A command's syntax as a procedure has described it; what the descriptors of the contract hold.
#pragma once

#include "host/command_parser.h"

#include <optional>
#include <string>
#include <vector>

namespace standin {

/// How this host reads the numbers for the kind of a parameter's value.
namespace kinds {
inline constexpr UPSpecTypes::ParamSpec bareKeyword{0};       ///< no value; presence alone counts
inline constexpr UPSpecTypes::ParamSpec keyword{3};           ///< one of the allowed values
inline constexpr UPSpecTypes::ParamSpec keywordOrLiteral{4};  ///< likewise, in quotes too
inline constexpr UPSpecTypes::ParamSpec number{7};
inline constexpr UPSpecTypes::ParamSpec integer{9};
inline constexpr UPSpecTypes::ParamSpec variableList{16};
inline constexpr UPSpecTypes::ParamSpec qualifierList{28};
}  // namespace kinds

/// How it reads those for parentheses around a value.
namespace brackets {
inline constexpr UPSpecTypes::BracketOptions none{0};
inline constexpr UPSpecTypes::BracketOptions aroundVariables{3};  ///< allowed, not required
}  // namespace brackets

struct ParameterDescription {
    std::string name;
    UPSpecTypes::ParamSpec kind = kinds::bareKeyword;
    bool required = false;
    UPSpecTypes::BracketOptions brackets = brackets::none;
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
