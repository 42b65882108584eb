// The sizes that every benchmark runs at.
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

}  // namespace bench
