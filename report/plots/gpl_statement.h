// One statement of a graph, read into a tree. What statements mean is the plot reader's affair.
//
//     statement  = kind ":" [ variable "=" ] expression
//     expression = call | product | name | number | text
//     call       = name "(" [ expression { "," expression } ] ")"
//     product    = name "*" name { "*" name }
//     text       = '"' characters '"', alone in its call
//
// Nothing is escaped in a text, so a quote may be part of it: a text ends at the first quote after which its call is
// closed and either the statement ends as well or another call follows as the next argument.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace report {

struct GplExpression {
    enum class Kind { Name, Number, Text, Call, Product };

    Kind kind = Kind::Name;
    std::string text;                      ///< the name, the digits, the text, or the name of what is called
    std::vector<GplExpression> arguments;  ///< of a call, or the factors of a product
};

struct GplStatement {
    std::string kind;      ///< "SOURCE", "DATA", "GRAPH", "GUIDE", "ELEMENT"; whatever stands before the colon
    std::string variable;  ///< what the expression is assigned to; may be empty
    GplExpression expression;
};

/// @throws PlotError  when it cannot be read; says at which column (in bytes, from 1), what is there and what should be
GplStatement parseGplStatement(std::string_view statement);

}  // namespace report
