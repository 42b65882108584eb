#include "tests/support/breaches.h"

namespace tests {

namespace {

template <class Object>
Object* deleted(std::optional<Object>& object)
{
    Object* gone = &*object;
    object.reset();
    return gone;
}

const std::vector<Breach> all{
    {"RowTooShort",
     [](Guest& g) {
         g.addTable(2, 2, {2, 1});
     },
     "Table::addTableToProcedureJSON: row 2 of the body has 1 cells, the column headers have 2 leaves"},
    {"RowTooLong", [](Guest& g) { g.addTable(1, 1, {2}); },
     "Table::addTableToProcedureJSON: row 1 of the body has 2 cells, the column headers have 1 leaves"},
    {"RowWithoutHeader", [](Guest& g) { g.addTable(0, 1, {1}); },
     "Table::addTableToProcedureJSON: the body has 1 rows, the row headers 0 leaves"},
    {"HeaderWithoutRow", [](Guest& g) { g.addTable(2, 1, {1}); },
     "Table::addTableToProcedureJSON: the body has 1 rows, the row headers 2 leaves"},
    {"FootnoteWithoutReference", [](Guest& g) { g.table->add_footnote("a"); },
     "Table::add_footnote: no reference was recorded before the footnote"},
    {"SecondFootnoteWithoutReference", [](Guest& g) { g.addFootnote().add_footnote("b"); },
     "Table::add_footnote: no reference was recorded before the footnote"},
    {"FootnoteSkipped", [](Guest& g) { g.table->addFootnoteRefs(1); },
     "Table::addFootnoteRefs: footnote 1 is out of turn; the next one is 0"},
    {"FootnoteRepeated", [](Guest& g) { g.addFootnote().addFootnoteRefs(0); },
     "Table::addFootnoteRefs: footnote 0 is out of turn; the next one is 1"},
    {"CellInTwoGroups", [](Guest& g) { g.group()->addCell(Guest::add(*g.tree, g.cell())); },
     "Descendants::addCell: the child was added before"},
    {"GroupInTwoGroups", [](Guest& g) { g.group()->addCell(Guest::add(*g.tree, g.group(1))); },
     "Descendants::addCell: the child was added before"},
    {"GroupInItself", [](Guest& g) { g.tree->addCell(g.tree.get()); },
     "Descendants::addCell: a group was added to itself"},
    {"HeaderCellInARow",
     [](Guest& g) {
         g.body->addCells({&*g.spare, Guest::add(*g.tree, g.cell())});
     },
     "Cells::addCells: a cell of the row was added before"},
    {"CellTwiceInARow",
     [](Guest& g) {
         g.body->addCells({&*g.spare, &*g.spare});
     },
     "Cells::addCells: one cell stands twice in the row"},
    {"CellInTwoRows",
     [](Guest& g) {
         Cell* cell = g.cell().release();
         g.body->addCells({cell});
         g.body->addCells({cell});
     },
     "Cells::addCells: a cell of the row was added before"},
    {"OneTreeForBothHeaders", [](Guest& g) { Dimension(&*g.table, g.tree.get(), g.tree.get()); },
     "Dimension::Dimension: one header tree was given twice"},
    {"HeaderTreeInAGroup",
     [](Guest& g) {
         Descendants* rows = g.group().release();
         g.dimension.emplace(&*g.table, rows, g.group().release());
         g.tree->addCell(rows);
     },
     "Descendants::addCell: the child was added before"},
    {"TableAddedTwice", [](Guest& g) { g.addTable(1, 1, {1}).addTableToProcedureJSON(); },
     "Table::addTableToProcedureJSON: the table was added before"},
    {"ChartAddedTwice", [](Guest& g) { g.addChart().addGPLGraphToProcedureJSON(); },
     "StatGPLGraph::addGPLGraphToProcedureJSON: the chart was added before"},
    {"PointsAfterTheChart", [](Guest& g) { g.addChart().setDataVector(g.numbers, true); },
     "StatGPLGraph::setDataVector: a column came after the chart was added"},
    {"NumbersAfterTheChart", [](Guest& g) { g.addChart().addToDataVector(g.numbers, "late"); },
     "StatGPLGraph::addToDataVector: a column came after the chart was added"},
    {"TextsAfterTheChart", [](Guest& g) { g.addChart().addToDataVector(g.texts, "late"); },
     "StatGPLGraph::addToDataVector: a column came after the chart was added"},
    {"SecondDocument", [](Guest& g) { g.deliver().deliver(); },
     "StatJSONConverter::generateOutput: a document was delivered before"},
    {"NoChild", [](Guest& g) { g.group()->addCell(nullptr); }, "Descendants::addCell: the child is not alive"},
    {"DeletedChild", [](Guest& g) { g.group()->addCell(deleted(g.spare)); },
     "Descendants::addCell: the child is not alive"},
    {"DeletedDimension", [](Guest& g) { g.table->set_dimensions(deleted(g.dimension)); },
     "Table::set_dimensions: the dimension is not alive"},
    {"TableWithoutItsDimension", [](Guest& g) { g.without(g.dimension).table->addTableToProcedureJSON(); },
     "Table::addTableToProcedureJSON: the dimension is not alive"},
    {"DeletedBody", [](Guest& g) { g.table->set_cells(deleted(g.body)); }, "Table::set_cells: the body is not alive"},
    {"TableWithoutItsBody", [](Guest& g) { g.without(g.body).table->addTableToProcedureJSON(); },
     "Table::addTableToProcedureJSON: the body is not alive"},
    {"AdapterOverADeletedSpecification", [](Guest& g) { ACAInputAdapter(*deleted(g.validSpecs), g.source); },
     "ACAInputAdapter::ACAInputAdapter: the validity specification is not alive"},
    {"IteratorOverADeletedAdapter", [](Guest& g) { ACAProcDataSourceIter(*deleted(g.adapter), true); },
     "ACAProcDataSourceIter::ACAProcDataSourceIter: the adapter is not alive"},
    {"CellOfADeletedTable", [](Guest& g) { Cell(deleted(g.table), CellType{1}); },
     "Cell::Cell: the table is not alive"},
    {"CellForADeletedDocument", [](Guest& g) { g.without(g.document).cell(); },
     "Cell::Cell: the document is not alive"},
    {"GroupInAGroupThatItHolds",
     [](Guest& g) {
         Descendants* inner = Guest::add(*g.tree, g.group());
         inner->addCell(g.tree.get());
     },
     "Descendants::addCell: a group was added to itself"},
    {"NameThatIsNull", [](Guest&) { QuvoVarName(nullptr); }, "QuvoVarName::QuvoVarName: the name is null"},
    {"ChartForADeletedDocument", [](Guest& g) { g.without(g.document).addChart(); },
     "StatGPLGraph::addGPLGraphToProcedureJSON: the document is not alive"},
    {"DeliveryForADeletedProcedure", [](Guest& g) { g.without(g.procedure).deliver(); },
     "StatJSONConverter::generateOutput: the procedure is not alive"},
    {"RecordKeptBeyondTheNext", [](Guest& g) { g.readRecord().readRecord().previous->Size(); },
     "RecKit::Record::Size: called on an object that is not alive"},
    {"RecordChanged", [](Guest& g) { g.readRecord().changeRecord().readRecord(); },
     "RecKit::RecordIterator::Next: the values of the last record were changed"},
    {"LastRecordChanged", [](Guest& g) { g.readRecord().changeRecord().without(g.iterator); },
     "ACAProcDataSourceIter::~ACAProcDataSourceIter: the values of the last record were changed", false},
    {"CellDeletedAfterHandingItOver", [](Guest& g) { delete Guest::add(*g.tree, g.cell()); },
     "Cell::~Cell: the module deleted what a host object owns", false},
    {"RecordPastTheEnd", [](Guest& g) { g.readRecord().readRecord().readRecord(); },
     "RecKit::RecordIterator::Next: no case is left"},
};

}  // namespace

const std::vector<Breach>& breaches()
{
    return all;
}

}  // namespace tests
