#include "tests/support/traced_session.h"

#include "runner/input/csv_reader.h"

#include <algorithm>

namespace tests {

namespace {

std::string withLineEnds(std::string csv)
{
    std::ranges::replace(csv, ';', '\n');
    return csv;
}

}  // namespace

std::vector<std::string> callsOf(const std::vector<std::string>& trace, const std::vector<std::string>& prefixes)
{
    std::vector<std::string> calls;
    for (std::string line : trace) {
        if (std::ranges::any_of(prefixes, [&line](const auto& prefix) { return line.starts_with(prefix); })) {
            std::ranges::replace(line, '\t', ' ');
            calls.push_back(line);
        }
    }
    return calls;
}

long fallibleCallsUpTo(const std::vector<std::string>& trace, const std::string& prefix, int n)
{
    long fallible = 0;
    for (auto call = trace.begin(); call != trace.end() && n > 0; ++call) {
        fallible += call->find("::~") == std::string::npos ? 1 : 0;
        n -= call->starts_with(prefix) ? 1 : 0;
    }
    return fallible;
}

TracedSession::TracedSession(const std::string& csv)
{
    session.dataSet = runner::readCsv(withLineEnds(csv), "test.csv");
    session.monitor.traceTo(&trace_);
}

TracedSession::~TracedSession()
{
    session.monitor.traceTo(nullptr);
}

std::vector<std::string> TracedSession::takeTrace()
{
    std::vector<std::string> lines;
    std::istringstream stream(trace_.str());
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    trace_.str("");
    return lines;
}

}  // namespace tests
