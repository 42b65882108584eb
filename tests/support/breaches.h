// Every rule of the contract, broken.
#pragma once

#include "tests/support/guest.h"

#include <vector>

namespace tests {

struct Breach {
    const char* name;
    void (*commit)(Guest& guest);
    const char* error;     ///< what the host says
    bool isRaised = true;  ///< false: noticed at a deletion, which must not throw
};

const std::vector<Breach>& breaches();

}  // namespace tests
