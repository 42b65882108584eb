#include "runner/module_library.h"

#include "runner/input/input_error.h"
#include "runner/platform/paths.h"
#include "standin/session/session.h"

#include <dlfcn.h>

#include <string>

namespace runner {

namespace fs = std::filesystem;

ModuleLibrary::ModuleLibrary(const fs::path& file)
    : handle_(dlopen(fs::absolute(file).c_str(), RTLD_NOW | RTLD_LOCAL))
{
    if (handle_ == nullptr) {
        throw InputError("the module cannot be loaded: " + std::string(dlerror()));
    }
    entryPoint_ = reinterpret_cast<EntryPoint>(dlsym(handle_, "BLDATMAN"));
    if (entryPoint_ == nullptr) {
        dlclose(handle_);
        throw InputError("the module cannot be used: " + shown(file) + " does not export BLDATMAN");
    }
}

ModuleLibrary::~ModuleLibrary()
{
    dlclose(handle_);
}

fs::path ModuleLibrary::besideHost()
{
    Dl_info host{};
    dladdr(reinterpret_cast<const void*>(&standin::Session::current), &host);
    return fs::path(host.dli_fname).parent_path() / "libbldatman.so";
}

}  // namespace runner
