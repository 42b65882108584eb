// The computation of one pair, the listwise pass and the sort, each beside what moving its memory costs.
#include "bench/allocator.h"
#include "bench/sizes.h"
#include "module/analysis/analysis.h"
#include "module/analysis/listwise.h"
#include "tests/support/made_data.h"
#include "tests/support/plain_reference.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

namespace {

using bldatman::BldatmanAnalysis;
using bldatman::BldatmanCriteriaSetting;
using bldatman::BldatmanCriteriaSubcommand;
using bldatman::BldatmanPairResult;
using bldatman::Column;
using Clock = std::chrono::steady_clock;

constexpr int pairMissingPercent = 2;
constexpr int listMissingPercent = 1;  // of each of eight columns: nearly a tenth of the rows

void countCases(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// Times what `timed` does to what `prepared` gives, without the preparation.
template <class Prepare, class Timed>
void measure(benchmark::State& state, Prepare prepare, Timed timed)
{
    for (auto _ : state) {
        auto prepared = prepare();
        const auto start = Clock::now();
        timed(prepared);
        benchmark::ClobberMemory();
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
    countCases(state);
}

/// The yardstick: two value copies and five result vectors, freshly made.
void FreshCopies(benchmark::State& state)
{
    const std::vector<Column> columns = tests::makeColumns(7, bench::casesOf(state), 0);
    for (auto _ : state) {
        std::vector<Column> copies;
        copies.reserve(columns.size());
        for (const Column& column : columns) {
            copies.push_back(column);
        }
        benchmark::DoNotOptimize(copies.data());
        benchmark::ClobberMemory();
    }
    countCases(state);
}

void timePair(benchmark::State& state, bool logTransform)
{
    const std::vector<Column> pair = tests::makeColumns(2, bench::casesOf(state), pairMissingPercent);
    BldatmanCriteriaSubcommand raw;
    raw.logTransform = logTransform ? "TRUE" : "FALSE";
    const BldatmanCriteriaSetting criteria(raw);
    const auto analyse = [&] {
        return BldatmanAnalysis::performBlandAltmanAnalysis("a", "b", pair[0], pair[1], criteria);
    };
    if (!tests::areTheSame(analyse(), tests::plainStatistics(pair[0], pair[1], criteria))) {
        state.SkipWithError("the record differs from the plain reference");
        return;
    }
    for (auto _ : state) {
        BldatmanPairResult record = analyse();
        benchmark::DoNotOptimize(record);
        benchmark::ClobberMemory();
    }
    countCases(state);
}

void PairStatistics(benchmark::State& state)
{
    timePair(state, false);
}

void PairStatisticsLog(benchmark::State& state)
{
    timePair(state, true);
}

using Lists = std::pair<std::vector<Column>, std::vector<Column>>;

Lists eightColumns(std::size_t cases)
{
    std::vector<Column> columns = tests::makeColumns(8, cases, listMissingPercent);
    return {{columns.begin(), columns.begin() + 4}, {columns.begin() + 4, columns.end()}};
}

void ListwiseCopies(benchmark::State& state)
{
    const Lists lists = eightColumns(bench::casesOf(state));
    for (auto _ : state) {
        Lists copies = lists;
        benchmark::DoNotOptimize(copies);
        benchmark::ClobberMemory();
    }
    countCases(state);
}

void Listwise(benchmark::State& state)
{
    const Lists lists = eightColumns(bench::casesOf(state));
    const auto removeMissing = [](Lists& whole) { bldatman::removeMissingCases(whole.first, whole.second); };
    Lists computed = lists;
    removeMissing(computed);
    std::vector<Column> all = lists.first;
    all.insert(all.end(), lists.second.begin(), lists.second.end());
    std::vector<Column> expected = tests::withoutMissingCases(all);
    if (!std::equal(computed.first.begin(), computed.first.end(), expected.begin()) ||
        !std::equal(computed.second.begin(), computed.second.end(), expected.begin() + 4)) {
        state.SkipWithError("the columns differ from the plain reference");
        return;
    }
    measure(
        state, [&] { return lists; }, removeMissing);
}

BldatmanPairResult recordOf(std::size_t cases)
{
    std::vector<Column> columns = tests::makeColumns(2, cases, 0);
    return BldatmanAnalysis::performBlandAltmanAnalysis("a", "b", columns[0], columns[1], BldatmanCriteriaSetting());
}

/// What a sort of one record costs at least: the sort of its keys with their positions, and five vectors moved.
void SortedPositions(benchmark::State& state)
{
    const BldatmanPairResult record = recordOf(bench::casesOf(state));
    measure(
        state, [&] { return record; },
        [](BldatmanPairResult& moved) {
            std::vector<std::pair<double, std::size_t>> keys(moved.means.size());
            for (std::size_t i = 0; i < keys.size(); ++i) {
                keys[i] = {moved.means[i], i};
            }
            std::sort(keys.begin(), keys.end());
            for (std::vector<double>* values :
                 {&moved.means, &moved.differences, &moved.ratios, &moved.valuesA, &moved.valuesB}) {
                std::vector<double> reordered(keys.size());
                for (std::size_t i = 0; i < keys.size(); ++i) {
                    reordered[i] = (*values)[keys[i].second];
                }
                *values = std::move(reordered);
            }
        });
}

void DetailSort(benchmark::State& state)
{
    const BldatmanPairResult record = recordOf(bench::casesOf(state));
    const auto sort = [](BldatmanPairResult& unsorted) { BldatmanAnalysis::sortDetails(unsorted, "MEAN", false); };
    BldatmanPairResult sorted = record;
    sort(sorted);
    std::vector<double> expected = record.means;
    std::sort(expected.begin(), expected.end());
    if (sorted.means != expected) {
        state.SkipWithError("the means are not in order");
        return;
    }
    measure(
        state, [&] { return record; }, sort);
}

void upToAMillionByHand(benchmark::internal::Benchmark* benchmark)
{
    bench::upToAMillion(benchmark);
    benchmark->UseManualTime();
}

void inKeptMemory(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1000000)
        ->Unit(benchmark::kMicrosecond)
        ->Setup([](const benchmark::State&) { bench::keepMemory(); })
        ->Teardown([](const benchmark::State&) { bench::takeFreshMemory(); });
}

void inKeptMemoryByHand(benchmark::internal::Benchmark* benchmark)
{
    inKeptMemory(benchmark);
    benchmark->UseManualTime();
}

BENCHMARK(FreshCopies)->Apply(bench::upToAMillion);
BENCHMARK(PairStatistics)->Apply(bench::upToAMillion);
BENCHMARK(PairStatisticsLog)->Apply(bench::upToAMillion);
BENCHMARK(ListwiseCopies)->Apply(bench::upToAMillion);
BENCHMARK(Listwise)->Apply(upToAMillionByHand);
BENCHMARK(SortedPositions)->Apply(upToAMillionByHand);
BENCHMARK(DetailSort)->Apply(upToAMillionByHand);

BENCHMARK(FreshCopies)->Name("KeptCopies")->Apply(inKeptMemory);
BENCHMARK(PairStatistics)->Name("KeptPairStatistics")->Apply(inKeptMemory);
BENCHMARK(ListwiseCopies)->Name("KeptListwiseCopies")->Apply(inKeptMemory);
BENCHMARK(Listwise)->Name("KeptListwise")->Apply(inKeptMemoryByHand);
BENCHMARK(SortedPositions)->Name("KeptSortedPositions")->Apply(inKeptMemoryByHand);
BENCHMARK(DetailSort)->Name("KeptDetailSort")->Apply(inKeptMemoryByHand);

}  // namespace
