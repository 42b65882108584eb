// What the benchmarks have in common.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>

namespace bench {

inline void upToAMillion(benchmark::internal::Benchmark* benchmark)
{
    benchmark->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMicrosecond);
}

inline std::size_t casesOf(const benchmark::State& state)
{
    return static_cast<std::size_t>(state.range(0));
}

inline void countCases(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

}  // namespace bench
