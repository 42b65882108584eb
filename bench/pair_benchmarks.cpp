#include "bench/allocator.h"
#include "bench/benchmarks.h"
#include "bench/sizes.h"
#include "module/analysis/analysis.h"
#include "module/analysis/listwise.h"
#include "reference/made_data.h"
#include "reference/plain_reference.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

namespace {

using bldatman::BldatmanAnalysis;
using bldatman::BldatmanCriteriaSetting;
using bldatman::BldatmanCriteriaSubcommand;
using bldatman::BldatmanPairResult;
using bldatman::Column;

constexpr double pairMissingPercent = 2;
constexpr double listMissingPercent = 1.3;  // of each of eight columns: a tenth of the rows

/// Times what `timed` does to copies of `whole`, without the copying.
template <class Whole, class Timed>
void timeOnCopies(benchmark::State& state, const Whole& whole, Timed timed)
{
    std::unique_ptr<Whole> copy;
    for (auto _ : state) {
        state.PauseTiming();
        copy.reset();
        copy = std::make_unique<Whole>(whole);
        state.ResumeTiming();
        timed(*copy);
        benchmark::ClobberMemory();
    }
    bench::countCases(state);
}

/// The yardstick: what a pair fills that copies its values and then makes the five vectors of a record.
void FreshCopies(benchmark::State& state)
{
    const std::vector<Column> columns = reference::makeColumns(7, bench::casesOf(state), 0);
    for (auto _ : state) {
        std::vector<Column> copies;
        copies.reserve(columns.size());
        for (const Column& column : columns) {
            copies.push_back(column);
        }
        benchmark::DoNotOptimize(copies.data());
        benchmark::ClobberMemory();
    }
    bench::countCases(state);
}

void timePair(benchmark::State& state, bool logTransform)
{
    const std::vector<Column> pair = reference::makeColumns(2, bench::casesOf(state), pairMissingPercent);
    BldatmanCriteriaSubcommand raw;
    raw.logTransform = logTransform ? "TRUE" : "FALSE";
    const BldatmanCriteriaSetting criteria(raw);
    const auto analyse = [&] {
        return BldatmanAnalysis::performBlandAltmanAnalysis("a", "b", pair[0], pair[1], criteria);
    };
    const std::string difference =
        reference::firstDifference(analyse(), reference::plainRecord(pair[0], pair[1], criteria));
    if (!difference.empty()) {
        state.SkipWithError(difference.c_str());
        return;
    }
    for (auto _ : state) {
        BldatmanPairResult record = analyse();
        benchmark::DoNotOptimize(record);
        benchmark::ClobberMemory();
    }
    bench::countCases(state);
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
    std::vector<Column> columns = reference::makeColumns(8, cases, listMissingPercent);
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
    bench::countCases(state);
}

void Listwise(benchmark::State& state)
{
    const Lists lists = eightColumns(bench::casesOf(state));
    const auto removeMissing = [](Lists& whole) { bldatman::removeMissingCases(whole.first, whole.second); };
    Lists computed = lists;
    removeMissing(computed);
    std::vector<Column> all = lists.first;
    all.insert(all.end(), lists.second.begin(), lists.second.end());
    std::vector<Column> kept = computed.first;
    kept.insert(kept.end(), computed.second.begin(), computed.second.end());
    if (kept != reference::withoutMissingCases(all)) {
        state.SkipWithError("the columns differ from the plain reference");
        return;
    }
    timeOnCopies(state, lists, removeMissing);
}

BldatmanPairResult recordOf(std::size_t cases)
{
    std::vector<Column> columns = reference::makeColumns(2, cases, 0);
    return BldatmanAnalysis::performBlandAltmanAnalysis("a", "b", columns[0], columns[1], BldatmanCriteriaSetting());
}

/// What a sort of one record costs at least: the sort of its keys with their positions, and five vectors moved.
void SortedPositions(benchmark::State& state)
{
    const BldatmanPairResult record = recordOf(bench::casesOf(state));
    timeOnCopies(state, record, [](BldatmanPairResult& moved) {
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

bool isSortedByMean(const BldatmanPairResult& sorted, const BldatmanPairResult& record)
{
    std::vector<std::size_t> positions(record.means.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    std::ranges::stable_sort(positions, {}, [&record](std::size_t i) { return record.means[i]; });
    const auto isReordered = [&positions](const std::vector<double>& after, const std::vector<double>& before) {
        return std::ranges::equal(after, positions, {}, {}, [&before](std::size_t i) { return before[i]; });
    };
    return isReordered(sorted.means, record.means) && isReordered(sorted.differences, record.differences) &&
           isReordered(sorted.ratios, record.ratios) && isReordered(sorted.valuesA, record.valuesA) &&
           isReordered(sorted.valuesB, record.valuesB);
}

void DetailSort(benchmark::State& state)
{
    const BldatmanPairResult record = recordOf(bench::casesOf(state));
    const auto sort = [](BldatmanPairResult& unsorted) { BldatmanAnalysis::sortDetails(unsorted, "MEAN", false); };
    BldatmanPairResult sorted = record;
    sort(sorted);
    if (!isSortedByMean(sorted, record)) {
        state.SkipWithError("the rows are not those of a plain sort");
        return;
    }
    timeOnCopies(state, record, sort);
}

void inKeptMemory(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1000000)->Unit(benchmark::kMicrosecond)->Setup([](const benchmark::State&) { bench::keepMemory(); });
}

struct Row {
    const char* name;
    const char* keptName;
    void (*run)(benchmark::State&);
};

constexpr std::array<Row, 7> rows{{{"FreshCopies", "KeptCopies", FreshCopies},
                                   {"PairStatistics", "KeptPairStatistics", PairStatistics},
                                   {"PairStatisticsLog", "KeptPairStatisticsLog", PairStatisticsLog},
                                   {"ListwiseCopies", "KeptListwiseCopies", ListwiseCopies},
                                   {"Listwise", "KeptListwise", Listwise},
                                   {"SortedPositions", "KeptSortedPositions", SortedPositions},
                                   {"DetailSort", "KeptDetailSort", DetailSort}}};

}  // namespace

void bench::registerPairs()
{
    for (const Row& row : rows) {
        benchmark::RegisterBenchmark(row.name, row.run)->Apply(bench::upToAMillion);
    }
}

void bench::registerPairsInKeptMemory()
{
    for (const Row& row : rows) {
        benchmark::RegisterBenchmark(row.keptName, row.run)->Apply(inKeptMemory);
    }
}
