// What the library does when the system loads it: it takes the host's common-area pointers.
//
// The platform's own entry-point function is in load_on_*.cpp, linked into the shared library only.
#pragma once

#include <array>

namespace bldatman {

/// What the load hook stores. The pointers stay as set until the library is unloaded; nothing else in the module uses
/// them.
struct LoadState {
    void* moduleHandle = nullptr;
    std::array<void*, 22> commonAreas{};  ///< in the order of their getters in host/common_areas.h
};

/// The reason code with which the system announces that a process has loaded the library.
inline constexpr unsigned long processAttach = 1;

/// The load hook. On `processAttach` it stores the handle and fetches the 22 pointers, each once, in their
/// order; for every other reason it does nothing. Returns 1 in every case: the load succeeds.
int loadHook(void* moduleHandle, unsigned long reason, void* reserved);

const LoadState& loadState();

}  // namespace bldatman
