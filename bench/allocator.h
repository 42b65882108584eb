// What the allocator does with large blocks.
#pragma once

#include <benchmark/benchmark.h>

namespace bench {

/// From here on every large block comes fresh from the system and goes back to it, as for the first command of a
/// program. Left to itself the allocator keeps more or less of what was freed, by what ran before.
void takeFreshMemory(const benchmark::State& state);

/// From here on large blocks are used again, as when one pair follows another.
void keepMemory(const benchmark::State& state);

}  // namespace bench
