// What lies behind the host's output objects.
#pragma once

#include "host/output.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

struct StatJSONGenerator::Data {
    rapidjson::Document document;

    /// Appends a finished table or graph, made with the document's allocator.
    void append(rapidjson::Value& object);
};

/// Of a cell or of a group.
struct Cell::Data {
    /// What a group of header cells has beyond a cell.
    struct Group {
        std::optional<std::string> label;
        bool showLabel = true;
        std::vector<Cell*> children;  ///< owned
    };

    StatJSONGenerator::Data* document;
    bool added = false;  ///< some host object owns it
    std::variant<std::monostate, double, std::string> value;
    std::optional<Group> group;

    bool isGroup() const { return group.has_value(); }
};

struct Dimension::Data {
    Descendants* rows;     ///< owned
    Descendants* columns;  ///< owned
};

struct Cells::Data {
    std::vector<std::vector<Cell*>> rows;  ///< owned cells
};

struct Table::Data {
    StatJSONGenerator* generator = nullptr;
    std::string name;
    std::string title;
    bool hideTitle = false;
    int minColumnWidth = 0;
    int maxColumnWidth = 0;
    int formatType = 0;
    int formatWidth = 0;
    int formatDecimals = 0;
    std::vector<int> footnoteRefs;
    std::vector<std::string> footnotes;
    Dimension* dimension = nullptr;  ///< the module's
    Cells* cells = nullptr;          ///< the module's
    bool added = false;
};
