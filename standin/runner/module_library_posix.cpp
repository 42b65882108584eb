#include "standin/runner/module_library.h"

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

fs::path ModuleLibrary::besideProgram()
{
    const fs::path program = fs::read_symlink("/proc/self/exe");
    return program.parent_path() / BLDATMAN_LIBRARY_FROM_PROGRAM;
}

}  // namespace standin
