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

void addText(standin::Variable& variable, const std::string& text, std::size_t line)
{
    if (!variable.firstText) {
        variable.level = standin::levels::nominal;
        variable.firstText = {line, text};
    }
    auto& labels = variable.valueLabels;
    auto label = std::ranges::find(labels, text, [](const auto& known) { return known.second; });
    if (label == labels.end()) {
        label = labels.emplace(labels.size() + 1, text).first;
    }
    variable.values.push_back(label->first);
}

void addCell(standin::Variable& variable, const std::string& cell, std::size_t line)
{
    const auto number = text::readNumber(cell);
    if (number || cell.empty() || cell == "." || cell == "NA") {
        variable.values.push_back(number.value_or(systemMissingValue));
    } else {
        addText(variable, cell, line);
    }
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
    for (std::size_t number = 2; std::getline(lines, line, ';'); ++number) {
        const std::vector<std::string> cells = cellsOf(line);
        for (std::size_t i = 0; i < dataSet.variables.size() && !line.empty(); ++i) {
            addCell(dataSet.variables[i], cells.at(i), number);
        }
        dataSet.caseCount += line.empty() ? 0U : 1U;
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
