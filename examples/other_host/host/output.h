// The output document, pivot tables, charts and the delivery.
//
// Who deletes what: a group its children, a dimension its two trees, a body its cells. The module deletes the table,
// the dimension and the body, in this order, once the table has been added. An operation that throws has taken nothing.
#pragma once

#include "host/case_adapter.h"
#include "host/procedure.h"

#include <rapidjson/document.h>

#include <memory>
#include <variant>

namespace QUVO_Format {
enum FormatType : int {};
}  // namespace QUVO_Format

enum CellType : int {};

struct StatJSONGenerator : other::Object {
    StatJSONGenerator(std::string title, std::string second)
    {
        begin("StatJSONGenerator", title, second);
        document.SetObject().AddMember("title", title, allocator);
        document.AddMember("objects", rapidjson::Value(rapidjson::kArrayType), allocator);
    }

    rapidjson::Document& getProcedureStatJSON() { return call("StatJSONGenerator::getProcedureStatJSON"), document; }

    rapidjson::Document document;
    rapidjson::Document::AllocatorType& allocator = document.GetAllocator();
};

struct StatJSONConverter : other::Object {
    explicit StatJSONConverter(BpProcedure&) { begin("StatJSONConverter"); }

    /// The module does not look at the result: a delivery that fails is for the host to report.
    bool generateOutput(const rapidjson::Document& document);
};

struct OPSCommonOutput : other::Object {
    OPSCommonOutput(ACAVarValidSpecs*, ProcedureDataSource&, BpProcedure*, auto none)
    {
        begin("OPSCommonOutput", none);
    }
};

struct Cells;
struct Dimension;

/// Keeps a pointer to its internal name, which the module leaves in place for as long as the table lives.
struct Table : other::Object {
    Table(StatJSONGenerator* forDocument, std::string& internalName)
    {
        begin("Table", *(keptName = &internalName)), document = forDocument;
    }
    ~Table() override { theHost.releasedTables.push_back(*keptName); }

    void set_table_title(std::string text) { call("Table::set_table_title", title = text); }
    void hide_title(bool hide) { call("Table::hide_title", hide); }
    void set_min_data_column_width(int width) { call("Table::set_min_data_column_width", width); }
    void set_max_data_column_width(int width) { call("Table::set_max_data_column_width", width); }
    void set_default_cell_format(QUVO_Format::FormatType type, int width, int decimals)
    {
        call("Table::set_default_cell_format", type, width, decimals);
    }

    /// The module announces a footnote with its number before it adds it, and may announce one that it does not add.
    void addFootnoteRefs(int index) { call("Table::addFootnoteRefs", index); }
    void add_footnote(std::string text) { call("Table::add_footnote", footnotes.emplace_back(text)); }

    void set_dimensions(Dimension* trees) { call("Table::set_dimensions"), dimension = trees; }
    void set_cells(Cells* cells) { call("Table::set_cells"), body = cells; }
    void addTableToProcedureJSON();

    StatJSONGenerator* document = nullptr;
    const std::string* keptName = nullptr;
    std::string title;
    std::vector<std::string> footnotes;
    Dimension* dimension = nullptr;
    Cells* body = nullptr;
};

struct Cell : other::Object {
    Cell() = default;
    Cell(Table* table, CellType type) { begin("Cell", type), document = table->document; }

    /// What the document shows; taken out of the cell.
    virtual rapidjson::Value getJson() { return std::move(value); }

    void setValue(double number) { call("Cell::setValue", number), value = number; }
    void setValue(std::string text) { call("Cell::setValue", text), value.SetString(text, document->allocator); }

    StatJSONGenerator* document = nullptr;
    rapidjson::Value value;
};

struct Descendants : Cell {
    explicit Descendants(Table* table) { begin("Descendants"), document = table->document; }

    rapidjson::Value getJson() override;

    void set_label(std::string text)
    {
        call("Descendants::set_label", text), value.SetString(text, document->allocator);
    }
    void setShowLabel(bool show) { call("Descendants::setShowLabel", show); }
    void addCell(Cell* child) { call("Descendants::addCell"), children.emplace_back(child); }

    std::vector<std::unique_ptr<Cell>> children;
};

/// The two header trees of a table.
struct Dimension : other::Object {
    Dimension(Table*, Descendants* left, Descendants* top) { begin("Dimension"), rows.reset(left), columns.reset(top); }

    std::unique_ptr<Descendants> rows;
    std::unique_ptr<Descendants> columns;
};

/// The body of a table.
struct Cells : other::Object {
    explicit Cells(Table*) { begin("Cells"); }

    void addCells(std::vector<Cell*> row) { call("Cells::addCells", row), rows.emplace_back(row.begin(), row.end()); }

    std::vector<std::vector<std::unique_ptr<Cell>>> rows;
};

/// Keeps pointers to the columns and reads them when the chart is added, no sooner and no later.
struct StatGPLGraph : other::Object {
    StatGPLGraph(StatJSONGenerator* forDocument, std::string chart)
    {
        begin("StatGPLGraph", name = chart), document = forDocument;
    }

    std::string getName() { return call("StatGPLGraph::getName"), name; }
    void setDataVector(const std::vector<double>& values, bool isX)
    {
        call("StatGPLGraph::setDataVector", values, isX), columns[isX ? "xdata" : "ydata"] = &values;
    }
    void addToDataVector(auto& values, std::string column)
    {
        call("StatGPLGraph::addToDataVector", values, column), columns[column] = &values;
    }
    void addGPLGraphToProcedureJSON();

    /// The chart adds its statements to `graph`, as the array "gpl". The name is the host's; the module has it in one
    /// place.
    virtual void writeGPL(rapidjson::Value& graph, rapidjson::Document::AllocatorType& allocator) = 0;

    StatJSONGenerator* document = nullptr;
    std::map<std::string, std::variant<const std::vector<double>*, const std::vector<std::string>*>> columns;
};
