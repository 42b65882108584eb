// Contract of the host's output library: the output document, pivot tables, charts and the delivery.
//
// Ownership: a header group deletes its children, a dimension its two header trees, a `Cells` object its cells. The
// table, the dimension and the `Cells` object belong to the module, which deletes them, in this order, once the table
// has been added to the document. An operation that throws has taken nothing.
#pragma once

#include "host/case_adapter.h"
#include "host/procedure.h"

#include <rapidjson/document.h>

#include <memory>
#include <string>
#include <vector>

class Descendants;
class Table;

namespace QUVO_Format {
/// The host's display formats, whose meaning is its own; this procedure passes 5.
enum FormatType : int {};
}  // namespace QUVO_Format

/// Every cell of this procedure, header cells included, has type 1.
enum CellType : int {};

/// The output document of one run.
class StatJSONGenerator {
public:
    /// An empty document. The second text is the host's; this procedure passes an empty one.
    StatJSONGenerator(const std::string& title, const std::string& second);
    virtual ~StatJSONGenerator();
    StatJSONGenerator(const StatJSONGenerator&) = delete;
    StatJSONGenerator& operator=(const StatJSONGenerator&) = delete;

    /// The document with all that has been added so far; owned by this object.
    rapidjson::Document& getProcedureStatJSON();

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// Delivers documents to the host's output.
class StatJSONConverter {
public:
    explicit StatJSONConverter(BpProcedure& procedure);
    ~StatJSONConverter();
    StatJSONConverter(const StatJSONConverter&) = delete;
    StatJSONConverter& operator=(const StatJSONConverter&) = delete;

    /// Delivers a document, once per run. It may be gone as soon as this returns, so what the host needs of it later it
    /// copies. The result is the host's; this procedure does not look at it.
    bool generateOutput(rapidjson::Document& document);

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// What every procedure's output has in common; what it does is the host's. Keeps what it is given, and lives while
/// tables and charts are made and delivered.
class OPSCommonOutput {
public:
    /// This procedure passes null for `adapter`.
    OPSCommonOutput(ACAVarValidSpecs* validSpecs, ProcedureDataSource& source, BpProcedure* procedure,
                    const ACAInputAdapter* adapter);
    ~OPSCommonOutput();
    OPSCommonOutput(const OPSCommonOutput&) = delete;
    OPSCommonOutput& operator=(const OPSCommonOutput&) = delete;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// One cell of a table's body or headers.
class Cell {
public:
    Cell(Table* table, CellType type);
    virtual ~Cell();

    /// The host's form of the cell; the module does not ask for it.
    virtual rapidjson::Value getJson();
    Cell(const Cell&) = delete;
    Cell& operator=(const Cell&) = delete;

    /// A number, shown in the table's default cell format.
    void setValue(double number);

    void setValue(std::string text);

    struct Data;  ///< the host's own, of a group too
    std::unique_ptr<Data> data;

protected:
    Cell();  ///< for `Descendants` alone
};

/// A group of header cells, itself a cell, so that groups nest.
class Descendants : public Cell {
public:
    explicit Descendants(Table* table);
    ~Descendants() override;

    rapidjson::Value getJson() override;

    /// The group's label; a group without the call has none.
    void set_label(std::string label);

    /// Whether the label is shown; a group without the call has the host's default.
    void setShowLabel(bool show);

    /// Appends a child and takes it over.
    void addCell(Cell* child);
};

/// The two header trees of a table.
class Dimension {
public:
    /// Takes both header trees over.
    Dimension(Table* table, Descendants* rows, Descendants* columns);
    ~Dimension();
    Dimension(const Dimension&) = delete;
    Dimension& operator=(const Dimension&) = delete;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// The body of a table.
class Cells {
public:
    explicit Cells(Table* table);
    ~Cells();
    Cells(const Cells&) = delete;
    Cells& operator=(const Cells&) = delete;

    /// Appends one row, left to right, as many cells as the column tree has leaves, and takes the cells over.
    void addCells(std::vector<Cell*> row);

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// A pivot table.
class Table {
public:
    /// @param name  the internal name, the same in every language
    Table(StatJSONGenerator* generator, std::string& name);
    virtual ~Table();
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    /// The title that is shown, in the output language.
    void set_table_title(std::string title);

    /// Whether the title is left out.
    void hide_title(bool hide);

    /// Bounds of a data column's width, in the host's unit.
    void set_min_data_column_width(int width);
    void set_max_data_column_width(int width);

    /// How numeric cells are shown; this procedure passes 5, 10 and 3.
    void set_default_cell_format(const QUVO_Format::FormatType& type, short width, short decimals);

    /// Refers the table to the footnote that is about to be added; footnotes count from 0.
    void addFootnoteRefs(int index);

    /// Appends a footnote.
    void add_footnote(const std::string& text);

    /// The table keeps both pointers until it has been added; it does not own them.
    void set_dimensions(Dimension* dimension);
    void set_cells(Cells* cells);

    /// Appends the finished table to the document, once.
    void addTableToProcedureJSON();

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// Base of a procedure's charts. Columns handed over are copied.
class StatGPLGraph {
public:
    /// @param name  the chart's name
    StatGPLGraph(StatJSONGenerator* generator, const std::string& name);
    StatGPLGraph(const StatGPLGraph&) = delete;
    StatGPLGraph& operator=(const StatGPLGraph&) = delete;

    virtual ~StatGPLGraph();

    /// The host asks for the chart's statements here, once, while the graph is added to the document: the chart adds
    /// the member "gpl", an array of texts, to `graph`. The operation's name is the host's: another's may differ.
    virtual void writeGPL(rapidjson::Value& graph,
                          rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>& allocator) = 0;

    /// The name given at construction.
    std::string getName() const;

    /// The points: the column "xdata" when `isX`, else "ydata".
    void setDataVector(const std::vector<double>& values, bool isX);

    /// A further column, named. The vector is left as it is.
    void addToDataVector(std::vector<double>& values, const std::string& column);
    void addToDataVector(std::vector<std::string>& values, const std::string& column);

    /// Appends the finished graph to the document, once.
    void addGPLGraphToProcedureJSON();

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};
