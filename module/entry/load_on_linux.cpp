// Linux: the library's constructor plays the part of the system's entry-point call, so that `BLDATMAN` stays the only
// export.
#include "module/entry/load_hook.h"

extern "C" void* __dso_handle;  // the linker's name

namespace {

[[gnu::constructor]] void onLibraryLoaded()
{
    bldatman::loadHook(&__dso_handle, bldatman::processAttach, nullptr);
}

}  // namespace
