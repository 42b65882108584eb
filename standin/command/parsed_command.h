// What a parse found in a command.
#pragma once

#include "host/command_parser.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace standin {

struct KeywordText {
    std::string text;  ///< in the spelling of the allowed value
    bool isLiteral;    ///< it stood in quotes
};

/// A variable's name, or with `last` a range of variables in data-set order.
struct VariableItem {
    std::string first;
    std::optional<std::string> last;
};

struct ParsedParameter {
    using Value =
        std::variant<std::monostate, KeywordText, double, int, std::vector<VariableItem>, std::vector<ParsedParameter>>;

    std::string name;  ///< as described
    Value value;       ///< no value: the parameter stands alone
};

struct ParsedSubcommand {
    std::string name;  ///< as described
    std::vector<ParsedParameter> parameters;
};

struct ParsedCommand {
    std::vector<ParsedSubcommand> subcommands;
};

}  // namespace standin
