// Runs another program.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace report {

/// A program that cannot be run; `what()` says which and why.
class ProcessError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Runs a program to its end.
///
/// @param command     its name, looked up where the user's programs are, and its arguments
/// @param input       what it reads from its standard input
/// @param takeOutput  is given what it writes to its standard output, as it comes
/// @return            what it wrote to its standard error stream
/// @throws ProcessError  when it cannot be started, or there is no room for the input
std::string runProgram(const std::vector<std::string>& command, const std::string& input,
                       const std::function<void(std::string_view)>& takeOutput);

}  // namespace report
