// The memory that the module asks for. Linked into a program, this takes the place of the global `operator new`.
#pragma once

#include <functional>

namespace tests {

/// While it lives, what the module allocates is counted, the host's own allocations are not: of a text that the host
/// returns, only leak detection knows. One at a time.
class ModuleMemory {
public:
    /// @param granted  called at every allocation: whether it succeeds; must not allocate
    explicit ModuleMemory(std::function<bool()> granted);
    ~ModuleMemory();
    ModuleMemory(const ModuleMemory&) = delete;
    ModuleMemory& operator=(const ModuleMemory&) = delete;

    /// Blocks that nobody has freed so far.
    static long stillAllocated();
};

}  // namespace tests
