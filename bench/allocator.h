// What the allocator does with large blocks.
#pragma once

namespace bench {

/// From here on every large block comes fresh from the system and goes back to it, as for the first command of a
/// program. Left to itself the allocator keeps more or less of what was freed, by what ran before.
void takeFreshMemory();

/// From here on large blocks are used again, as when one pair follows another.
void keepMemory();

}  // namespace bench
