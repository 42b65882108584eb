// The library that holds the module.
#pragma once

#include <filesystem>

namespace runner {

/// A loaded library, unloaded with this object.
class ModuleLibrary {
public:
    using EntryPoint = void (*)();

    /// @throws InputError  when it cannot be loaded or does not export `BLDATMAN`
    explicit ModuleLibrary(const std::filesystem::path& file);
    ~ModuleLibrary();
    ModuleLibrary(const ModuleLibrary&) = delete;
    ModuleLibrary& operator=(const ModuleLibrary&) = delete;

    EntryPoint entryPoint() const { return entryPoint_; }

    /// Where the library stands that was built or installed with this host: beside the host's own library.
    static std::filesystem::path besideHost();

private:
    void* handle_;
    EntryPoint entryPoint_ = nullptr;
};

}  // namespace runner
