#include "standin/runner/module_library.h"

#include "host/common_areas.h"
#include "standin/input_error.h"
#include "standin/runner/paths.h"

#include <dlfcn.h>

#include <string>

namespace standin {

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
    dladdr(reinterpret_cast<const void*>(&pvGetCmnBpr), &host);
    return fs::path(host.dli_fname).parent_path() / "libbldatman.so";
}

}  // namespace standin
