// A file that cannot be used, and why.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace runner {

/// `what()` is a whole sentence for the user: file, line where there is one, reason.
class InputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;

    InputError(const std::string& fileName, const std::string& reason)
        : std::runtime_error(fileName + ": " + reason)
    {
    }

    InputError(const std::string& fileName, std::size_t line, const std::string& reason)
        : InputError(fileName + ":" + std::to_string(line), reason)
    {
    }
};

}  // namespace runner
