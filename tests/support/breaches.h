// Every rule of the contract, broken.
#pragma once

#include "tests/support/guest.h"

#include <vector>

namespace tests {

struct Breach {
    const char* name = nullptr;
    void (*commit)(Guest& guest) = nullptr;
    const char* error = nullptr;  ///< what the host says
    bool isRaised = true;         ///< false: noticed at a deletion, which must not throw
};

const std::vector<Breach>& breaches();

}  // namespace tests
