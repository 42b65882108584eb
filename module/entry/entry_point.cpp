#include "module/entry/entry_point.h"

#include "module/diagnostics.h"
#include "module/entry/driver.h"

extern "C" void BLDATMAN()
{
    try {
        try {
            bldatman::bldatman_entry();
        } catch (...) {
            bldatman::reportCurrentException("BLDATMAN: ");
        }
    } catch (...) {
        // A host can have set its standard error stream to throw: then nobody is left to tell, and nothing leaves here.
    }
}
