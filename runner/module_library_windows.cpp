#include "runner/module_library.h"

#include "runner/input/input_error.h"
#include "runner/platform/paths.h"
#include "text/wide_text_windows.h"

#include <windows.h>

#include <string>

namespace runner {

namespace fs = std::filesystem;

ModuleLibrary::ModuleLibrary(const fs::path& file)
    : handle_(LoadLibraryExW(fs::absolute(file).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH))
{
    if (handle_ == nullptr) {
        throw InputError("the module cannot be loaded: " + shown(file) + ": " + text::systemMessage(GetLastError()));
    }
    auto* const library = static_cast<HMODULE>(handle_);
    entryPoint_ = reinterpret_cast<EntryPoint>(reinterpret_cast<void*>(GetProcAddress(library, "BLDATMAN")));
    if (entryPoint_ == nullptr) {
        FreeLibrary(library);
        throw InputError("the module cannot be used: " + shown(file) + " does not export BLDATMAN");
    }
}

ModuleLibrary::~ModuleLibrary()
{
    FreeLibrary(static_cast<HMODULE>(handle_));
}

fs::path ModuleLibrary::besideHost()
{
    std::wstring host(32768, L'\0');
    host.resize(GetModuleFileNameW(GetModuleHandleW(L"standin.dll"), host.data(), static_cast<DWORD>(host.size())));
    return fs::path(host).parent_path() / "bldatman.dll";
}

}  // namespace runner
