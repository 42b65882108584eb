// Documents as a run delivers them. Their JSON is written with single quotes around texts; double ones need no escape.
#pragma once

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <list>
#include <string>
#include <utility>
#include <vector>

namespace tests {

inline rapidjson::Document parsed(const std::string& text)
{
    std::string json;
    for (const char c : text) {
        json += c == '\'' ? "\"" : c == '"' ? "\\\"" : std::string(1, c);
    }
    rapidjson::Document document;
    document.Parse<rapidjson::kParseFullPrecisionFlag | rapidjson::kParseNanAndInfFlag>(json.c_str());
    EXPECT_FALSE(document.HasParseError()) << json;
    return document;
}

/// Documents of a title and objects each.
inline std::list<rapidjson::Document> documentsOf(const std::vector<std::pair<std::string, std::string>>& contents)
{
    std::list<rapidjson::Document> documents;
    for (const auto& [title, objects] : contents) {
        documents.push_back(parsed("{'title': '" + title + "', 'objects': [" + objects + "]}"));
    }
    return documents;
}

/// A group of rows or columns.
inline std::string group(const std::string& label, const std::string& children, bool showLabel = true)
{
    return "{'label': " + label + ", 'showLabel': " + (showLabel ? "true" : "false") + ", 'children': [" + children +
           "]}";
}

struct TableParts {
    std::string title = {};  ///< hidden where it is empty
    std::string rows = group("null", "");
    std::string columns = group("null", "");
    std::string cells = {};
    std::string footnotes = {};
    std::string footnoteRefs = {};
};

inline std::string table(const TableParts& parts)
{
    return "{'type': 'table', 'name': '" + parts.title + "', 'title': '" + parts.title +
           "', 'hideTitle': " + (parts.title.empty() ? "true" : "false") +
           ", 'cellFormat': {'decimals': 2}, 'rows': " + parts.rows + ", 'columns': " + parts.columns + ", 'cells': [" +
           parts.cells + "], 'footnotes': [" + parts.footnotes + "], 'footnoteRefs': [" + parts.footnoteRefs + "]}";
}

/// The statements stand inside the graph, from the ninth on, after those that name its columns.
/// @param x  the numbers of the column x
inline std::string graph(const std::string& name, const std::vector<std::string>& statements,
                         const std::string& x = "1, 2, 3")
{
    std::string inside;
    for (const std::string& statement : statements) {
        inside += "'" + statement + "', ";
    }
    return "{'type': 'graph', 'name': '" + name + "', 'data': {'xdata': [" + x +
           R"(], 'y': [4, 5, 6], 'ends': [0, 4], 'legend': ['L', 'L'], 'mixed': ['L', 'M']}, 'gpl': [
             'SOURCE: s = userSource(id("g"))', 'DATA: x = col(source(s), name("xdata"))',
             'DATA: y = col(source(s), name("y"))', 'DATA: ends = col(source(s), name("ends"))',
             'DATA: c = col(source(s), name("legend"), unit.category())',
             'DATA: d = col(source(s), name("legend"), unit.category())',
             'DATA: m = col(source(s), name("mixed"), unit.category())', 'GRAPH: begin()', )" +
           inside + "'GRAPH: end()']}";
}

}  // namespace tests
