// The commands of a file.
#pragma once

#include "standin/command/command_text.h"

#include <string>
#include <vector>

namespace runner {

/// Cuts the text of a command file into its commands, each from its first token to the semicolon that closes it. Empty
/// commands are dropped.
/// @throws InputError  naming file, line and reason: a quote that is not closed, a last command that is not closed, no
///         command at all
std::vector<standin::CommandText> cutCommands(const std::string& text, const std::string& fileName);

}  // namespace runner
