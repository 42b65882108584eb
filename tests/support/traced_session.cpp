#include "tests/support/traced_session.h"

#include "text/numbers.h"

#include <algorithm>
#include <utility>

namespace tests {

namespace {

std::vector<std::string> cellsOf(const std::string& line)
{
    std::vector<std::string> cells(1);
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '"') {
            quoted = !quoted;
            cells.back() += quoted && i > 0 && line[i - 1] == '"' ? "\"" : "";
        } else if (line[i] == ',' && !quoted) {
            cells.emplace_back();
        } else {
            cells.back() += line[i];
        }
    }
    return cells;
}

void addCell(standin::Variable& variable, const std::string& cell, std::size_t line)
{
    const auto number = text::readNumber(cell);
    if (number || cell.empty() || cell == "." || cell == "NA") {
        variable.values.push_back(number.value_or(systemMissingValue));
        return;
    }
    variable.level = standin::levels::nominal;
    variable.firstText = variable.firstText.value_or(standin::FirstText{line, cell});
    auto& labels = variable.valueLabels;
    const auto known = std::ranges::find(labels, cell, [](const auto& label) { return label.second; });
    variable.values.push_back(known == labels.end() ? labels.emplace(labels.size() + 1, cell).first->first
                                                    : known->first);
}

standin::DataSet dataSetOf(const std::string& data)
{
    standin::DataSet dataSet;
    std::istringstream lines(data);
    std::string line;
    std::getline(lines, line, ';');
    for (const std::string& name : cellsOf(line)) {
        dataSet.variables.emplace_back().name = name;
    }
    for (; std::getline(lines, line, ';'); ++dataSet.caseCount) {
        const std::vector<std::string> cells = cellsOf(line);
        for (std::size_t i = 0; i < dataSet.variables.size(); ++i) {
            addCell(dataSet.variables[i], cells.at(i), dataSet.caseCount + 2);
        }
    }
    return dataSet;
}

}  // namespace

std::vector<std::string> callsOf(const std::vector<std::string>& trace, const std::vector<std::string>& prefixes)
{
    std::vector<std::string> calls;
    for (std::string line : trace) {
        if (std::ranges::any_of(prefixes, [&line](const auto& prefix) { return line.starts_with(prefix); })) {
            calls.push_back(line.replace(line.find('\t'), 1, " "));
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

TracedSession::TracedSession(const std::string& data)
{
    session.dataSet = dataSetOf(data);
    session.monitor.traceTo(&trace_);
}

std::vector<std::string> TracedSession::takeTrace()
{
    std::vector<std::string> lines;
    std::istringstream trace(std::exchange(trace_, {}).str());
    for (std::string line; std::getline(trace, line);) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace tests
