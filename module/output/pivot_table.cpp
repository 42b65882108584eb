#include "module/output/pivot_table.h"

#include <algorithm>
#include <utility>

namespace bldatman {

namespace {

const auto cellType1 = static_cast<CellType>(1);
const auto formatType5 = static_cast<QUVO_Format::FormatType>(5);

constexpr int minColumnWidth = 100;
constexpr int maxColumnWidth = 300;
constexpr short cellWidth = 10;
constexpr short cellDecimals = 3;

/// Gives up what now has another owner.
template <class Part>
void disown(std::vector<std::unique_ptr<Part>>& parts, const Part& part)
{
    const auto owner = std::ranges::find(parts, &part, &std::unique_ptr<Part>::get);
    (void)owner->release();
    parts.erase(owner);
}

}  // namespace

PivotTable::PivotTable(StatJSONGenerator& generator, std::string internalName, const std::string& title)
    : internalName_(std::move(internalName))
    , table_(std::make_unique<Table>(&generator, internalName_))
{
    table_->set_table_title(title);
    table_->hide_title(false);
    table_->set_min_data_column_width(minColumnWidth);
    table_->set_max_data_column_width(maxColumnWidth);
}

PivotTable::~PivotTable()
{
    release();
}

void PivotTable::setDefaultFormat()
{
    table_->set_default_cell_format(formatType5, cellWidth, cellDecimals);
}

void PivotTable::addFootnote(const std::string& text)
{
    referToFootnote();
    table_->add_footnote(text);
    ++footnoteCount_;
}

void PivotTable::referToFootnote()
{
    table_->addFootnoteRefs(footnoteCount_);
}

Descendants& PivotTable::makeGroup()
{
    std::unique_ptr<Descendants>& group = groups_.emplace_back();
    group = std::make_unique<Descendants>(table_.get());
    return *group;
}

void PivotTable::addHeader(Descendants& group, const std::string& text)
{
    Cell& cell = makeCell(text);
    group.addCell(&cell);
    disown(looseCells_, cell);
}

void PivotTable::addGroup(Descendants& parent, Descendants& child)
{
    parent.addCell(&child);
    disown(groups_, child);
}

void PivotTable::beginBody(Descendants& columns)
{
    columns_ = &columns;
    cells_ = std::make_unique<Cells>(table_.get());
    rows_ = &makeGroup();
}

void PivotTable::setRowsLabel(const std::string& label)
{
    rows_->set_label(label);
}

void PivotTable::addRow(std::initializer_list<CellValue> values)
{
    std::vector<Cell*> row;
    for (const CellValue& value : values) {
        row.push_back(&makeCell(value));
    }
    cells_->addCells(row);
    for (const Cell* cell : row) {
        disown(looseCells_, *cell);
    }
}

void PivotTable::addRowLabel(const std::string& text)
{
    addHeader(*rows_, text);
}

void PivotTable::emit()
{
    dimension_ = std::make_unique<Dimension>(table_.get(), rows_, columns_);
    disown(groups_, *rows_);
    disown(groups_, *columns_);
    table_->set_dimensions(dimension_.get());
    table_->set_cells(cells_.get());
    table_->addTableToProcedureJSON();
    release();
}

void PivotTable::release()
{
    table_.reset();
    dimension_.reset();
    groups_.clear();
    looseCells_.clear();
    cells_.reset();
}

Cell& PivotTable::makeCell(const CellValue& value)
{
    std::unique_ptr<Cell>& cell = looseCells_.emplace_back();
    cell = std::make_unique<Cell>(table_.get(), cellType1);
    std::visit([&cell](const auto& content) { cell->setValue(content); }, value);
    return *cell;
}

}  // namespace bldatman
