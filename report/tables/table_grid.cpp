#include "report/tables/table_grid.h"

#include "report/document/document_view.h"
#include "text/numbers.h"

namespace report {

namespace {

std::string cellText(const rapidjson::Value& value, int decimals)
{
    if (value.IsNumber()) {
        return text::formatFixed(value.GetDouble(), decimals);
    }
    return value.IsString() ? shownText(value) : std::string();
}

std::string shownLabel(const rapidjson::Value& group)
{
    const bool shown = group["showLabel"].GetBool() && group["label"].IsString();
    const std::string label = shown ? shownText(group["label"]) : "";
    return label.find_first_not_of(' ') == std::string::npos ? "" : label;
}

/// Walks a header tree; its leaves become columns, its groups spans over them.
void collectHeaders(const rapidjson::Value& group, std::size_t depth, int decimals, TableGrid& grid)
{
    const std::size_t first = grid.columnHeaders.size();
    if (grid.groupRows.size() <= depth) {
        grid.groupRows.resize(depth + 1);
    }
    for (const rapidjson::Value& child : group["children"].GetArray()) {
        if (child.HasMember("children")) {
            collectHeaders(child, depth + 1, decimals, grid);
        } else {
            grid.columnHeaders.push_back(cellText(child["value"], decimals));
        }
    }
    const std::string label = shownLabel(group);
    if (!label.empty() && grid.columnHeaders.size() > first) {
        grid.groupRows[depth].push_back({label, first, grid.columnHeaders.size() - first});
    }
}

void collectRowHeaders(const rapidjson::Value& group, const std::string& prefix, int decimals,
                       std::vector<std::string>& headers)
{
    for (const rapidjson::Value& child : group["children"].GetArray()) {
        if (child.HasMember("children")) {
            const std::string label = shownLabel(child);
            collectRowHeaders(child, label.empty() ? prefix : prefix + label + " / ", decimals, headers);
        } else {
            headers.push_back(prefix + cellText(child["value"], decimals));
        }
    }
}

}  // namespace

TableGrid layOut(const rapidjson::Value& table)
{
    const int decimals = table["cellFormat"]["decimals"].GetInt();
    TableGrid grid;
    collectHeaders(table["columns"], 0, decimals, grid);
    std::erase_if(grid.groupRows, [](const auto& row) { return row.empty(); });
    grid.rowsLabel = shownLabel(table["rows"]);
    collectRowHeaders(table["rows"], "", decimals, grid.rowHeaders);
    for (const rapidjson::Value& row : table["cells"].GetArray()) {
        std::vector<std::string>& texts = grid.body.emplace_back();
        for (const rapidjson::Value& cell : row.GetArray()) {
            texts.push_back(cellText(cell, decimals));
        }
    }
    return grid;
}

}  // namespace report
