#include "module/output/pivot_table.h"

#include <utility>

namespace bldatman {

namespace {

const auto cellType1 = static_cast<CellType>(1);
const auto formatType5 = static_cast<QUVO_Format::FormatType>(5);

constexpr int minColumnWidth = 100;
constexpr int maxColumnWidth = 300;
constexpr short cellWidth = 10;
constexpr short cellDecimals = 3;

/// Hands a child over to its group; the group owns it once `addCell` has returned.
template <class Child>
void handOver(Descendants& group, std::unique_ptr<Child> child)
{
    group.addCell(child.get());
    (void)child.release();
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

std::unique_ptr<Descendants> PivotTable::makeGroup()
{
    return std::make_unique<Descendants>(table_.get());
}

void PivotTable::addHeader(Descendants& group, const std::string& text)
{
    handOver(group, makeCell(text));
}

void PivotTable::addGroup(Descendants& parent, std::unique_ptr<Descendants> child)
{
    handOver(parent, std::move(child));
}

void PivotTable::beginBody(std::unique_ptr<Descendants> columns)
{
    columns_ = std::move(columns);
    cells_ = std::make_unique<Cells>(table_.get());
    rows_ = makeGroup();
}

void PivotTable::setRowsLabel(const std::string& label)
{
    rows_->set_label(label);
}

void PivotTable::addRow(std::initializer_list<CellValue> values)
{
    std::vector<std::unique_ptr<Cell>> owners;
    std::vector<Cell*> row;
    for (const CellValue& value : values) {
        owners.push_back(makeCell(value));
        row.push_back(owners.back().get());
    }
    cells_->addCells(row);
    for (std::unique_ptr<Cell>& owner : owners) {
        (void)owner.release();
    }
}

void PivotTable::addRowLabel(const std::string& text)
{
    addHeader(*rows_, text);
}

void PivotTable::emit()
{
    dimension_ = std::make_unique<Dimension>(table_.get(), rows_.get(), columns_.get());
    (void)rows_.release();
    (void)columns_.release();
    table_->set_dimensions(dimension_.get());
    table_->set_cells(cells_.get());
    table_->addTableToProcedureJSON();
    release();
}

void PivotTable::release()
{
    table_.reset();
    dimension_.reset();
    rows_.reset();
    columns_.reset();
    cells_.reset();
}

std::unique_ptr<Cell> PivotTable::makeCell(const CellValue& value)
{
    auto cell = std::make_unique<Cell>(table_.get(), cellType1);
    std::visit([&cell](const auto& content) { cell->setValue(content); }, value);
    return cell;
}

}  // namespace bldatman
