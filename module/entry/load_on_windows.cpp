// Windows: the function that the system calls when it loads and unloads the library, for the process and its threads.
#include "module/entry/load_hook.h"

#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID reserved);

extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID reserved)
{
    return bldatman::loadHook(library, reason, reserved);
}
