// From bytes to columns, and whole commands with their parts.
#include "bench/sizes.h"
#include "module/data/case_reader.h"
#include "module/entry/entry_point.h"
#include "standin/csv_reader.h"
#include "standin/render/render_json.h"
#include "standin/session.h"
#include "tests/support/made_data.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <vector>

namespace {

using bldatman::Column;
using Clock = std::chrono::steady_clock;

bool hold(const standin::DataSet& dataSet, const std::vector<Column>& columns)
{
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (dataSet.variables[i].values != columns[i]) {
            return false;
        }
    }
    return true;
}

void ReadCsv(benchmark::State& state)
{
    const std::vector<Column> columns = tests::makeColumns(2, bench::casesOf(state), 2);
    const std::string csv = tests::csvOf(columns);
    if (!hold(standin::readCsv(csv, "made.csv"), columns)) {
        state.SkipWithError("the values read are not those written");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(standin::readCsv(csv, "made.csv"));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(csv.size()));
}

void ReadColumns(benchmark::State& state)
{
    const std::vector<Column> columns = tests::makeColumns(2, bench::casesOf(state), 2);
    standin::Session session;
    session.dataSet = standin::readCsv(tests::csvOf(columns), "made.csv");
    ProcedureDataSource source;
    const auto read = [&] {
        std::vector<Column> made;
        bldatman::readCaseColumns({0, 1}, source, made);
        return made;
    };
    if (read() != columns) {
        state.SkipWithError("the columns read are not those of the data");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(read());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// A stopwatch that adds its laps up.
class Laps {
public:
    void operator()(double& sum)
    {
        const auto now = Clock::now();
        sum += std::chrono::duration<double>(now - last_).count();
        last_ = now;
    }

private:
    Clock::time_point last_ = Clock::now();
};

struct Parts {
    double reading = 0;
    double module = 0;
    double writing = 0;
};

/// CSV in, JSON out; false when no document came.
bool runWhole(const std::string& csv, const std::string& command, Parts& parts)
{
    Laps lap;
    standin::Session session;
    session.dataSet = standin::readCsv(csv, "made.csv");
    session.command = standin::singleCommand(command);
    lap(parts.reading);
    const bool delivered = session.run(BLDATMAN);
    lap(parts.module);
    benchmark::DoNotOptimize(standin::renderJson(session.documents));
    lap(parts.writing);
    return delivered;
}

void timeWhole(benchmark::State& state, const std::string& csv, const std::string& command)
{
    Parts parts;
    if (!runWhole(csv, command, parts)) {
        state.SkipWithError("no document was delivered");
        return;
    }
    parts = {};
    for (auto _ : state) {
        runWhole(csv, command, parts);
    }
    const auto perRun = benchmark::Counter::kAvgIterations;
    state.counters["reading_s"] = benchmark::Counter(parts.reading, perRun);
    state.counters["module_s"] = benchmark::Counter(parts.module, perRun);
    state.counters["writing_s"] = benchmark::Counter(parts.writing, perRun);
}

void WholeCommand(benchmark::State& state)
{
    const std::string csv = tests::csvOf(tests::makeColumns(2, bench::casesOf(state), 2));
    timeWhole(state, csv, "VARIABLE=v0 WITH=v1 PRINT(MEANDIFF AGREEMENT) PLOT(RATIO AGREEMENT_LIMITS)");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ManyPairs(benchmark::State& state)
{
    const auto variables = bench::casesOf(state);
    const std::string csv = tests::csvOf(tests::makeColumns(variables, 1000, 2));
    timeWhole(state, csv, "VARIABLE=v0:v" + std::to_string(variables - 1) + " PRINT(DETAILS MEANDIFF AGREEMENT)");
    state.SetItemsProcessed(state.iterations() * state.range(0) * (state.range(0) - 1));
}

BENCHMARK(ReadColumns)->Apply(bench::upToAMillion);
BENCHMARK(ReadCsv)->Apply(bench::upToAMillion);
BENCHMARK(WholeCommand)->Apply(bench::upToAMillion);
BENCHMARK(ManyPairs)->Arg(2)->Arg(5)->Arg(10)->Arg(20)->Unit(benchmark::kMicrosecond);

}  // namespace
