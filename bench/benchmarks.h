// The benchmarks, to be registered in the order in which they are to run.
#pragma once

namespace bench {

/// The computation of one pair, listwise deletion and the sort, each beside what moving its memory costs.
void registerPairs();

/// From bytes to columns, and whole commands with their parts.
void registerCommands();

/// The pairs at a million cases, in memory that is used again. What runs after them would find that memory.
void registerPairsInKeptMemory();

}  // namespace bench
