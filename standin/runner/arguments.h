// The words of the command line.
#pragma once

#include <string>
#include <vector>

namespace standin {

/// The arguments of the program without its name, as UTF-8 where the platform has them as text.
std::vector<std::string> argumentsOf(int argc, char** argv);

}  // namespace standin
