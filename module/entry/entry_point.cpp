#include "module/entry/entry_point.h"

#include "module/diagnostics.h"
#include "module/entry/driver.h"

extern "C" void BLDATMAN()
{
    try {
        bldatman::bldatman_entry();
    } catch (...) {
        bldatman::reportCurrentException("BLDATMAN: ");
    }
}
