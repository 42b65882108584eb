// Runs another program.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace report {

/// Runs a program to its end.
///
/// @param command     its name, looked up where the user's programs are, and its arguments
/// @param input       what it reads from its standard input
/// @param takeOutput  is given what it writes to its standard output, as it comes
/// @return            what it wrote to its standard error stream
/// @throws PlotError  when it cannot be started, or there is no room for the input; says which and why
std::string runProgram(const std::vector<std::string>& command, const std::string& input,
                       const std::function<void(std::string_view)>& takeOutput);

}  // namespace report
