// Every rule of the contract, broken.
#pragma once

#include "tests/support/guest.h"

#include <vector>

namespace tests {

struct Breach {
    const char* name;
    void (*commit)(Guest& guest);
    const char* error;  ///< what the host says
};

const std::vector<Breach>& breaches();

}  // namespace tests
