// A pivot table: what the module has told it, the check of the whole, and its form in the document.
#include "standin/border/host_call.h"
#include "standin/document/json_parts.h"
#include "standin/objects/output/output_data.h"

#include <numeric>
#include <utility>

using standin::HostCall;

namespace {

/// How many cells stand at the ends of a header tree; a tree without children has none.
std::size_t leafCount(const Descendants& group)
{
    return std::accumulate(group.data->group->children.begin(), group.data->group->children.end(), std::size_t{0},
                           [](std::size_t count, const Cell* child) {
                               return count + (child->data->isGroup()
                                                   ? leafCount(*static_cast<const Descendants*>(child))
                                                   : std::size_t{1});
                           });
}

void requireConsistentBody(const HostCall& call, const Table::Data& table)
{
    const std::size_t columnCount = leafCount(*table.dimension->data->columns);
    const std::size_t rowCount = leafCount(*table.dimension->data->rows);
    const auto& rows = table.cells->data->rows;
    if (rows.size() != rowCount) {
        call.fail("the body has " + std::to_string(rows.size()) + " rows, the row headers " + std::to_string(rowCount) +
                  " leaves");
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].size() != columnCount) {
            call.fail("row " + std::to_string(i + 1) + " of the body has " + std::to_string(rows[i].size()) +
                      " cells, the column headers have " + std::to_string(columnCount) + " leaves");
        }
    }
}

rapidjson::Value bodyOf(const Cells& cells, rapidjson::Document::AllocatorType& allocator)
{
    rapidjson::Value body(rapidjson::kArrayType);
    body.Reserve(static_cast<rapidjson::SizeType>(cells.data->rows.size()), allocator);
    for (const auto& row : cells.data->rows) {
        rapidjson::Value values(rapidjson::kArrayType);
        values.Reserve(static_cast<rapidjson::SizeType>(row.size()), allocator);
        for (Cell* cell : row) {
            values.PushBack(cell->getJson(), allocator);
        }
        body.PushBack(values, allocator);
    }
    return body;
}

rapidjson::Value jsonOf(const Table::Data& table, rapidjson::Document::AllocatorType& allocator)
{
    using rapidjson::Value;
    Value width(rapidjson::kObjectType);
    width.AddMember("min", table.minColumnWidth, allocator);
    width.AddMember("max", table.maxColumnWidth, allocator);
    Value format(rapidjson::kObjectType);
    format.AddMember("type", table.formatType, allocator);
    format.AddMember("width", table.formatWidth, allocator);
    format.AddMember("decimals", table.formatDecimals, allocator);

    Value json(rapidjson::kObjectType);
    json.AddMember("type", "table", allocator);
    json.AddMember("name", Value(table.name, allocator), allocator);
    json.AddMember("title", Value(table.title, allocator), allocator);
    json.AddMember("hideTitle", table.hideTitle, allocator);
    json.AddMember("columnWidth", width, allocator);
    json.AddMember("cellFormat", format, allocator);
    json.AddMember("footnoteRefs", standin::jsonArray(table.footnoteRefs, allocator), allocator);
    json.AddMember("footnotes", standin::jsonArray(table.footnotes, allocator), allocator);
    json.AddMember("rows", table.dimension->data->rows->getJson(), allocator);
    json.AddMember("columns", table.dimension->data->columns->getJson(), allocator);
    json.AddMember("cells", bodyOf(*table.cells, allocator), allocator);
    return json;
}

}  // namespace

Table::Table(StatJSONGenerator* generator, std::string& name)
{
    HostCall call(HostCall::Constructor{}, "Table::Table", generator, name);
    call.requireAlive(generator, "the document");
    data = std::make_unique<Data>();
    data->generator = generator;
    data->name = name;
    call.creates(this);
}

Table::~Table()
{
    HostCall call(HostCall::Destructor{}, this, "Table::~Table");
    data.reset();
}

void Table::set_table_title(std::string title)
{
    HostCall call(this, "Table::set_table_title", title);
    data->title = std::move(title);
}

void Table::hide_title(bool hide)
{
    HostCall call(this, "Table::hide_title", hide);
    data->hideTitle = hide;
}

void Table::set_min_data_column_width(int width)
{
    HostCall call(this, "Table::set_min_data_column_width", width);
    data->minColumnWidth = width;
}

void Table::set_max_data_column_width(int width)
{
    HostCall call(this, "Table::set_max_data_column_width", width);
    data->maxColumnWidth = width;
}

void Table::set_default_cell_format(const QUVO_Format::FormatType& type, short width, short decimals)
{
    HostCall call(this, "Table::set_default_cell_format", type, width, decimals);
    data->formatType = type;
    data->formatWidth = width;
    data->formatDecimals = decimals;
}

void Table::addFootnoteRefs(int index)
{
    HostCall call(this, "Table::addFootnoteRefs", index);
    if (index < 0 || static_cast<std::size_t>(index) != data->footnotes.size()) {
        call.fail("footnote " + std::to_string(index) + " is out of turn; the next one is " +
                  std::to_string(data->footnotes.size()));
    }
    data->footnoteRefs.push_back(index);
}

void Table::add_footnote(const std::string& text)
{
    HostCall call(this, "Table::add_footnote", text);
    const bool referred =
        !data->footnoteRefs.empty() && static_cast<std::size_t>(data->footnoteRefs.back()) == data->footnotes.size();
    call.require(referred, "no reference was recorded before the footnote");
    data->footnotes.push_back(text);
}

void Table::set_dimensions(Dimension* dimension)
{
    HostCall call(this, "Table::set_dimensions", dimension);
    call.requireAlive(dimension, "the dimension");
    data->dimension = dimension;
}

void Table::set_cells(Cells* cells)
{
    HostCall call(this, "Table::set_cells", cells);
    call.requireAlive(cells, "the body");
    data->cells = cells;
}

void Table::addTableToProcedureJSON()
{
    HostCall call(this, "Table::addTableToProcedureJSON");
    call.require(!data->added, "the table was added before");
    call.requireAlive(data->generator, "the document");
    call.requireAlive(data->dimension, "the dimension");
    call.requireAlive(data->cells, "the body");
    requireConsistentBody(call, *data);
    StatJSONGenerator::Data& document = *data->generator->data;
    rapidjson::Value json = jsonOf(*data, document.document.GetAllocator());
    document.append(json);
    data->added = true;
}
