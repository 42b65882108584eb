// A module that breaks the contract in the way that BLDATMAN_BREACH names; "?" lists the ways, with what the host says
// to each. Without it, the module leaves a host object behind.
#include "host/language_paths.h"
#include "tests/support/breaches.h"

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string_view>

namespace {

std::unique_ptr<OLang> forgotten;

void commit(std::string_view name)
{
    tests::Guest guest;
    for (const tests::Breach& breach : tests::breaches()) {
        if (breach.name == name) {
            breach.commit(guest);
        }
    }
}

}  // namespace

extern "C" void BLDATMAN();

extern "C" void BLDATMAN()
{
    const char* const name = std::getenv("BLDATMAN_BREACH");
    if (name == nullptr) {
        forgotten = std::make_unique<OLang>();
        return;
    }
    if (std::string_view(name) == "?") {
        for (const tests::Breach& breach : tests::breaches()) {
            std::cout << breach.name << '\t' << breach.error << std::endl;
        }
        return;
    }
    try {
        commit(name);
    } catch (...) {  // as the real module lets nothing out
    }
}
