// Reads a command against the description of its syntax.
#pragma once

#include "standin/command/command_text.h"
#include "standin/command/parsed_command.h"
#include "standin/command/syntax_description.h"

namespace standin {

/// Reads `text` in the stand-in's notation, which holds for any description:
///
///     NAME parameters-of-the-unnamed-subcommand SUBCOMMAND(parameters) ... ;
///
/// Keywords stand in any case; a parameter is `NAME`, `NAME=value` or, with qualifiers, `NAME(qualifiers)`. Neither a
/// subcommand nor a parameter may be given twice; only a parameter that the description requires must be given.
/// Variables are not looked up.
///
/// @throws CommandError  with the place, what was found there and what could stand there, near misses first
ParsedCommand parseCommand(const CommandText& text, const CommandDescription& description);

}  // namespace standin
