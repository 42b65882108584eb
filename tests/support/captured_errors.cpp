#include "tests/support/captured_errors.h"

#include <iostream>

namespace tests {

CapturedErrors::CapturedErrors()
    : previous_(std::cerr.rdbuf(captured_.rdbuf()))
{
}

CapturedErrors::~CapturedErrors()
{
    std::cerr.rdbuf(previous_);
}

}  // namespace tests
