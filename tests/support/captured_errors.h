// The standard error stream, caught.
#pragma once

#include <iostream>
#include <sstream>
#include <string>

namespace tests {

/// While it lives, what is written to the standard error stream is kept.
class CapturedErrors {
public:
    CapturedErrors() = default;
    ~CapturedErrors() { std::cerr.rdbuf(previous_); }
    CapturedErrors(const CapturedErrors&) = delete;
    CapturedErrors& operator=(const CapturedErrors&) = delete;

    std::string text() const { return captured_.str(); }

private:
    std::ostringstream captured_;
    std::streambuf* previous_ = std::cerr.rdbuf(captured_.rdbuf());
};

}  // namespace tests
