// The host checks its guest: here the guest breaks one rule of the contract after the other.
#include "host/case_adapter.h"
#include "host/language_paths.h"
#include "host/output.h"
#include "host/procedure.h"
#include "standin/session.h"
#include "tests/support/traced_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace standin {
namespace {

class Chart : public StatGPLGraph {
public:
    using StatGPLGraph::StatGPLGraph;

    void writeGPL(rapidjson::Value& graph, rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>& allocator) override
    {
        graph.AddMember("gpl", rapidjson::Value(rapidjson::kArrayType), allocator);
    }
};

/// A module with all the objects that a command needs, none of them in breach of anything. Those that can be deleted
/// while their place stays known let the host be given what is no longer alive.
struct Guest {
    Guest()
    {
        table->set_dimensions(&*dimension);
        table->set_cells(&body);
    }

    std::unique_ptr<Cell> cell() { return std::make_unique<Cell>(&*table, CellTypeStandard); }

    std::unique_ptr<Descendants> group(int leaves = 0)
    {
        auto made = std::make_unique<Descendants>(&*table);
        for (int i = 0; i < leaves; ++i) {
            add(*made, cell());
        }
        return made;
    }

    /// Adds a child to a group and returns what is the group's now.
    template <class Child>
    static Child* add(Descendants& parent, std::unique_ptr<Child> child)
    {
        parent.addCell(child.get());
        return child.release();
    }

    /// Adds the table with so many header leaves and body rows of these sizes.
    Table& addTable(int rowLeaves, int columnLeaves, const std::vector<int>& rowSizes)
    {
        dimension.emplace(&*table, group(rowLeaves).release(), group(columnLeaves).release());
        for (const int size : rowSizes) {
            std::vector<Cell*> row(static_cast<std::size_t>(size));
            std::ranges::generate(row, [this] { return cell().release(); });
            body.addCells(row);
        }
        table->addTableToProcedureJSON();
        return *table;
    }

    Table& addFootnote()
    {
        table->addFootnoteRefs(0);
        table->add_footnote("a");
        return *table;
    }

    Chart& addChart()
    {
        chart.setDataVector(numbers, false);
        chart.addToDataVector(numbers, "numbers");
        chart.addToDataVector(texts, "texts");
        chart.addGPLGraphToProcedureJSON();
        return chart;
    }

    Guest& readRecord()
    {
        if (!iterator) {
            validSpecs.AddVariable(1, false, true, true, true);
            iterator.emplace(adapter, true);
        }
        previous = std::exchange(record, iterator->Next());
        return *this;
    }

    Guest& changeRecord()
    {
        *const_cast<double*>(record->GetAll()) += 1;
        return *this;
    }

    Guest& deliver()
    {
        converter.generateOutput(document->getProcedureStatJSON());
        return *this;
    }

    template <class Object>
    Guest& without(std::optional<Object>& object)
    {
        object.reset();
        return *this;
    }

    tests::TracedSession host{"a,b;1,2;3,4"};
    std::optional<BpProcedure> procedure{std::in_place, "GUEST", 10};
    ProcedureDataSource source;
    ACAVarValidSpecs validSpecs{true, true, true};
    ACAInputAdapter adapter{validSpecs, source};
    std::optional<ACAProcDataSourceIter> iterator;
    const RecKit::Record* record = nullptr;
    const RecKit::Record* previous = nullptr;
    std::optional<StatJSONGenerator> document{std::in_place, "title", ""};
    StatJSONConverter converter{*procedure};
    std::string tableName = "table";
    std::optional<Table> table{std::in_place, &*document, tableName};
    std::optional<Cell> spare{std::in_place, &*table, CellTypeStandard};
    std::optional<Dimension> dimension{std::in_place, &*table, group().release(), group().release()};
    Cells body{&*table};
    std::unique_ptr<Descendants> tree = group();
    std::vector<double> numbers{1};
    std::vector<std::string> texts{"1"};
    Chart chart{&*document, "chart"};
};

template <class Object>
Object* deleted(std::optional<Object>& object)
{
    Object* gone = &*object;
    object.reset();
    return gone;
}

std::string breachRaisedBy(const std::function<void()>& action)
{
    try {
        action();
    } catch (const ContractBreach& breach) {
        return breach.what();
    }
    return "";
}

struct Breach {
    const char* name;
    void (*commit)(Guest& guest);
    const char* error;
};

class Contract : public testing::TestWithParam<Breach> {};

TEST_P(Contract, NamesTheOperationThatBreaksItAndEndsThere)
{
    Guest guest;
    EXPECT_EQ(breachRaisedBy([&guest] { GetParam().commit(guest); }), GetParam().error);
    EXPECT_EQ(guest.host.session.monitor.breach(), GetParam().error);
    for (int again = 0; again < 2; ++again) {
        EXPECT_EQ(breachRaisedBy([] { const OLang language; }), GetParam().error);
    }
}

const std::vector<Breach> breaches{
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
         g.body.addCells({&*g.spare, Guest::add(*g.tree, g.cell())});
     },
     "Cells::addCells: a cell of the row was added before"},
    {"CellTwiceInARow",
     [](Guest& g) {
         g.body.addCells({&*g.spare, &*g.spare});
     },
     "Cells::addCells: one cell stands twice in the row"},
    {"CellInTwoRows",
     [](Guest& g) {
         Cell* cell = g.cell().release();
         g.body.addCells({cell});
         g.body.addCells({cell});
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
    {"CellOfADeletedTable", [](Guest& g) { Cell(deleted(g.table), CellTypeStandard); },
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
    {"RecordPastTheEnd", [](Guest& g) { g.readRecord().readRecord().readRecord(); },
     "RecKit::RecordIterator::Next: no case is left"},
};

std::string nameOf(const testing::TestParamInfo<Breach>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Guest, Contract, testing::ValuesIn(breaches), nameOf);

TEST(ContractKept, WithAReferenceThatNoFootnoteFollows)
{
    Guest guest;
    guest.table->addFootnoteRefs(0);
    EXPECT_NO_THROW(guest.addTable(1, 1, {1}));
}

TEST(ContractKept, WithHeadersWithoutLeavesAndAnEmptyBody)
{
    Guest guest;
    EXPECT_NO_THROW(guest.addTable(0, 2, {}));
}

TEST(ContractAtDeletion, NotesTheChangedLastRecordWithoutAnException)
{
    Guest guest;
    EXPECT_NO_THROW(guest.readRecord().changeRecord().without(guest.iterator));
    const std::string error =
        "ACAProcDataSourceIter::~ACAProcDataSourceIter: the values of the last record were changed";
    guest.host.session.monitor.endCommand();  // finds more, but the first breach stays
    EXPECT_EQ(guest.host.session.monitor.breach(), error);
    EXPECT_EQ(breachRaisedBy([&guest] { guest.addChart(); }), error);
}

// Its owner knows not to delete it again.
TEST(ContractAtDeletion, NotesACellThatTheModuleDeletesAfterHandingItOver)
{
    Guest guest;
    delete Guest::add(*guest.tree, guest.cell());
    EXPECT_EQ(guest.host.session.monitor.breach(), "Cell::~Cell: the module deleted what a host object owns");
}

TEST(ContractAtDeletion, LeavesNothingToReadInARecordThatIsOver)
{
    Guest guest;
    const double* kept = guest.readRecord().record->GetAll();
    EXPECT_EQ(*kept, 2.0);
    guest.readRecord();
    EXPECT_TRUE(std::isnan(*kept));
}

std::unique_ptr<OLang> forgotten;

TEST(ContractAfterACommand, FindsAHostObjectThatIsStillAlive)
{
    Session session;
    EXPECT_FALSE(session.run([] { const OLang language; }));
    EXPECT_EQ(session.monitor.breach(), "");
    session.run([] { forgotten = std::make_unique<OLang>(); });
    EXPECT_EQ(session.monitor.breach(), "OLang: a host object is still alive after the command");
    forgotten.reset();
}

}  // namespace
}  // namespace standin
