// The parts of a pivot table: cells, header groups, the dimension and the body.
#include "standin/border/host_call.h"
#include "standin/document/json_parts.h"
#include "standin/objects/output/output_data.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>
#include <utility>

using standin::HostCall;

namespace {

/// Requires a cell that a host object is about to take over to be alive and nobody's.
void requireFree(const HostCall& call, const Cell* cell, const char* what)
{
    call.requireAlive(cell, what);
    if (cell->data->added) {
        call.fail(std::string(what) + " was added before");
    }
}

/// The document of a table that a cell is made for.
StatJSONGenerator::Data* documentOf(const HostCall& call, const Table* table)
{
    call.requireAlive(table, "the table");
    call.requireAlive(table->data->generator, "the document");
    return table->data->generator->data.get();
}

constexpr std::array<std::string_view, 3> groupMembers{"label", "showLabel", "children"};
constexpr std::array<std::string_view, 1> leafMembers{"value"};

rapidjson::Value leafOf(Cell& cell, rapidjson::Document::AllocatorType& allocator)
{
    rapidjson::Value leaf = standin::jsonObject(leafMembers, allocator);
    leaf["value"] = cell.getJson();
    return leaf;
}

/// True when the cell is the group itself or a group that holds it at any depth.
bool holds(const Cell* cell, const Descendants* group)
{
    if (cell == group || !cell->data->isGroup()) {
        return cell == group;
    }
    const auto& children = cell->data->group->children;
    return std::any_of(children.begin(), children.end(), [group](const Cell* child) { return holds(child, group); });
}

/// A cell that a host object has taken over is no longer the module's to delete.
void noteForeignDeletion(const HostCall& call, const Cell::Data& cell)
{
    if (cell.added && call.isFromModule()) {
        call.noteBreach("the module deleted what a host object owns");
    }
}

/// Deletes what this host object owns, unless the module has done so against the rule.
void deleteIfAlive(const HostCall& call, const Cell* cell)
{
    if (call.isAlive(cell)) {
        delete cell;
    }
}

}  // namespace

Cell::Cell(Table* table, CellType type)
{
    HostCall call(HostCall::Constructor{}, "Cell::Cell", table, type);
    data = std::make_unique<Data>(Data{documentOf(call, table), false, {}, {}});
    call.creates(this);
}

Cell::Cell() = default;

Cell::~Cell()
{
    if (data == nullptr) {
        return;  // a group, which has announced itself, or one whose construction failed
    }
    HostCall call(HostCall::Destructor{}, this, "Cell::~Cell");
    noteForeignDeletion(call, *data);
    data.reset();
}

rapidjson::Value Cell::getJson()
{
    HostCall call(this, "Cell::getJson");
    auto& allocator = data->document->document.GetAllocator();
    rapidjson::Value value;
    if (const auto* number = std::get_if<double>(&data->value)) {
        value.SetDouble(*number);
    } else if (const auto* text = std::get_if<std::string>(&data->value)) {
        value.SetString(*text, allocator);
    }
    return value;
}

void Cell::setValue(double number)
{
    HostCall call(this, "Cell::setValue", number);
    data->value = number;
}

void Cell::setValue(std::string text)
{
    HostCall call(this, "Cell::setValue", text);
    data->value = std::move(text);
}

Descendants::Descendants(Table* table)
{
    HostCall call(HostCall::Constructor{}, "Descendants::Descendants", table);
    data = std::make_unique<Data>(Data{documentOf(call, table), false, {}, Data::Group{}});
    call.creates(this);
}

Descendants::~Descendants()
{
    HostCall call(HostCall::Destructor{}, this, "Descendants::~Descendants");
    noteForeignDeletion(call, *data);
    for (const Cell* child : data->group->children) {
        deleteIfAlive(call, child);
    }
    data.reset();
}

rapidjson::Value Descendants::getJson()
{
    HostCall call(this, "Descendants::getJson");
    auto& allocator = data->document->document.GetAllocator();
    rapidjson::Value children(rapidjson::kArrayType);
    children.Reserve(static_cast<rapidjson::SizeType>(data->group->children.size()), allocator);
    for (Cell* child : data->group->children) {
        children.PushBack(child->data->isGroup() ? child->getJson() : leafOf(*child, allocator), allocator);
    }
    rapidjson::Value json = standin::jsonObject(groupMembers, allocator);
    if (data->group->label) {
        json["label"].SetString(*data->group->label, allocator);
    }
    json["showLabel"] = data->group->showLabel;
    json["children"] = children;
    return json;
}

void Descendants::set_label(std::string label)
{
    HostCall call(this, "Descendants::set_label", label);
    data->group->label = std::move(label);
}

void Descendants::setShowLabel(bool show)
{
    HostCall call(this, "Descendants::setShowLabel", show);
    data->group->showLabel = show;
}

void Descendants::addCell(Cell* child)
{
    HostCall call(this, "Descendants::addCell", child);
    requireFree(call, child, "the child");
    call.require(!holds(child, this), "a group was added to itself");
    data->group->children.push_back(child);
    child->data->added = true;
}

Dimension::Dimension(Table* table, Descendants* rows, Descendants* columns)
{
    HostCall call(HostCall::Constructor{}, "Dimension::Dimension", table, rows, columns);
    call.requireAlive(table, "the table");
    requireFree(call, rows, "the row header tree");
    requireFree(call, columns, "the column header tree");
    call.require(rows != columns, "one header tree was given twice");
    data = std::make_unique<Data>(Data{rows, columns});
    rows->data->added = true;
    columns->data->added = true;
    call.creates(this);
}

Dimension::~Dimension()
{
    HostCall call(HostCall::Destructor{}, this, "Dimension::~Dimension");
    deleteIfAlive(call, data->rows);
    deleteIfAlive(call, data->columns);
    data.reset();
}

Cells::Cells(Table* table)
{
    HostCall call(HostCall::Constructor{}, "Cells::Cells", table);
    call.requireAlive(table, "the table");
    data = std::make_unique<Data>();
    call.creates(this);
}

Cells::~Cells()
{
    HostCall call(HostCall::Destructor{}, this, "Cells::~Cells");
    for (const auto& row : data->rows) {
        for (const Cell* cell : row) {
            deleteIfAlive(call, cell);
        }
    }
    data.reset();
}

void Cells::addCells(std::vector<Cell*> row)
{
    HostCall call(this, "Cells::addCells", row);
    for (const Cell* cell : row) {
        requireFree(call, cell, "a cell of the row");
    }
    call.require(std::set<Cell*>(row.begin(), row.end()).size() == row.size(), "one cell stands twice in the row");
    for (const Cell* cell : row) {
        cell->data->added = true;
    }
    data->rows.push_back(std::move(row));
}
