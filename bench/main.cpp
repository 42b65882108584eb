#include "bench/allocator.h"
#include "bench/benchmarks.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    bench::takeFreshMemory();  // before anything is allocated that could be used again
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    bench::registerPairs();  // first: commands leave a heap of small blocks behind them, with room for large ones
    bench::registerCommands();
    bench::registerPairsInKeptMemory();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
