// Reads the value of one parameter.
#pragma once

#include "standin/command/parsed_command.h"
#include "standin/command/syntax_description.h"
#include "standin/command/token_reader.h"

namespace standin {

/// Reads what follows the name of a parameter of any kind but qualifiers: "=" and a value, or nothing where none is
/// needed.
/// @throws CommandError  for a value that is missing, not of the kind, not allowed or out of bounds
ParsedParameter::Value parseValue(TokenReader& reader, const ParameterDescription& description);

}  // namespace standin
