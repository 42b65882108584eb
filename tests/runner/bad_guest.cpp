// A module that breaks the contract: it leaves a host object behind.
#include "host/language_paths.h"

#include <memory>

namespace {

std::unique_ptr<OLang> forgotten;

}  // namespace

extern "C" void BLDATMAN()
{
    forgotten = std::make_unique<OLang>();
}
