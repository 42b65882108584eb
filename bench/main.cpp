#include "bench/allocator.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    bench::takeFreshMemory();  // before anything is allocated that could be used again
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
