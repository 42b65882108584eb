#include "bench/benchmarks.h"
#include "bench/sizes.h"
#include "module/data/case_reader.h"
#include "module/entry/entry_point.h"
#include "reference/made_data.h"
#include "reference/plain_reference.h"
#include "report/formats/render_json.h"
#include "runner/input/csv_reader.h"
#include "standin/session/session.h"

#include <benchmark/benchmark.h>

#include <algorithm>
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
    const std::vector<Column> columns = reference::makeColumns(2, bench::casesOf(state), 2);
    const std::string csv = reference::csvOf(columns);
    if (!hold(runner::readCsv(csv, "made.csv"), columns)) {
        state.SkipWithError("the values read are not those written");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(runner::readCsv(csv, "made.csv"));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(csv.size()));
}

void ReadColumns(benchmark::State& state)
{
    const std::vector<Column> columns = reference::makeColumns(2, bench::casesOf(state), 2);
    standin::Session session;
    session.dataSet = runner::readCsv(reference::csvOf(columns), "made.csv");
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
    bench::countCases(state);
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

/// A command over a CSV text, taken part by part.
class Whole {
public:
    Whole(const std::string& csv, const std::string& command, Parts& parts)
    {
        Laps lap;
        session_.dataSet = runner::readCsv(csv, "made.csv");
        session_.command = standin::singleCommand(command);
        lap(parts.reading);
        session_.run(BLDATMAN);
        lap(parts.module);
        benchmark::DoNotOptimize(report::renderJson(session_.documents));
        lap(parts.writing);
    }

    /// The document's plots; none when no document came.
    std::vector<const rapidjson::Value*> plots() const
    {
        std::vector<const rapidjson::Value*> found;
        for (const rapidjson::Document& document : session_.documents) {
            for (const rapidjson::Value& object : document["objects"].GetArray()) {
                if (object["type"] == "graph") {
                    found.push_back(&object["data"]);
                }
            }
        }
        return found;
    }

private:
    standin::Session session_;
};

bool holds(const rapidjson::Value& array, const std::vector<double>& values)
{
    return std::ranges::equal(array.GetArray(), values, {},
                              [](const rapidjson::Value& value) { return value.GetDouble(); });
}

/// True when every plot of differences shows what a plain computation of its pair gives. There are `plotsPerPair` plots
/// for each two of the columns, that of the differences first.
bool isPlainlyRight(const Whole& whole, const std::vector<Column>& columns, std::size_t plotsPerPair)
{
    const auto plots = whole.plots();
    std::size_t next = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        for (std::size_t j = 0; j < columns.size() && next < plots.size(); ++j) {
            if (i == j) {
                continue;
            }
            const auto record = reference::plainRecord(columns[i], columns[j], bldatman::BldatmanCriteriaSetting());
            if (!holds((*plots[next])["xdata"], record.means) || !holds((*plots[next])["ydata"], record.differences)) {
                return false;
            }
            next += plotsPerPair;
        }
    }
    return next > 0 && next == plots.size();
}

void timeWhole(benchmark::State& state, const std::vector<Column>& columns, const std::string& command,
               std::size_t plotsPerPair)
{
    const std::string csv = reference::csvOf(columns);
    Parts parts;
    if (!isPlainlyRight(Whole(csv, command, parts), columns, plotsPerPair)) {
        state.SkipWithError("the plots do not show what a plain computation gives");
        return;
    }
    parts = {};
    for (auto _ : state) {
        const Whole whole(csv, command, parts);
    }
    const auto perRun = benchmark::Counter::kAvgIterations;
    state.counters["reading_s"] = benchmark::Counter(parts.reading, perRun);
    state.counters["module_s"] = benchmark::Counter(parts.module, perRun);
    state.counters["writing_s"] = benchmark::Counter(parts.writing, perRun);
}

void WholeCommand(benchmark::State& state)
{
    timeWhole(state, reference::makeColumns(2, bench::casesOf(state), 2),
              "VARIABLE=v0 WITH=v1 PRINT(MEANDIFF AGREEMENT) PLOT(RATIO AGREEMENT_LIMITS)", 2);
    bench::countCases(state);
}

void ManyPairs(benchmark::State& state)
{
    const auto variables = static_cast<std::size_t>(state.range(0));
    timeWhole(state, reference::makeColumns(variables, 1000, 2),
              "VARIABLE=v0:v" + std::to_string(variables - 1) + " PRINT(DETAILS MEANDIFF AGREEMENT)", 1);
    state.SetItemsProcessed(state.iterations() * state.range(0) * (state.range(0) - 1));
}

}  // namespace

void bench::registerCommands()
{
    benchmark::RegisterBenchmark("ReadColumns", ReadColumns)->Apply(bench::upToAMillion);
    benchmark::RegisterBenchmark("ReadCsv", ReadCsv)->Apply(bench::upToAMillion);
    benchmark::RegisterBenchmark("WholeCommand", WholeCommand)->Apply(bench::upToAMillion);
    auto* manyPairs = benchmark::RegisterBenchmark("ManyPairs", ManyPairs)->Unit(benchmark::kMicrosecond);
    for (const int variables : {2, 5, 10, 20}) {
        manyPairs->Arg(variables);
    }
}
