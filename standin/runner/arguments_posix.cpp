#include "standin/runner/arguments.h"

namespace standin {

std::vector<std::string> argumentsOf(int argc, char** argv)
{
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

}  // namespace standin
