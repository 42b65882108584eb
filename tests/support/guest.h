// A module with all the objects that a command needs, for breaking the contract with on purpose.
#pragma once

#include "host/case_adapter.h"
#include "host/output.h"
#include "host/procedure.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tests {

/// Its one statement is its name, for which it calls the host back.
class Chart : public StatGPLGraph {
public:
    using StatGPLGraph::StatGPLGraph;

    void writeGPL(rapidjson::Value& graph, rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>& allocator) override
    {
        rapidjson::Value statements(rapidjson::kArrayType);
        graph.AddMember("gpl", statements.PushBack(rapidjson::Value(getName(), allocator), allocator), allocator);
    }
};

/// None of the objects is in breach of anything. Those that can be deleted while their place stays known let the host
/// be given what is no longer alive. The session that runs has two variables and two cases.
struct Guest {
    Guest()
    {
        table->set_dimensions(&*dimension);
        table->set_cells(&*body);
        validSpecs->AddVariable(1, false, true, true, true);
        iterator.emplace(*adapter, true);
    }

    std::unique_ptr<Cell> cell() { return std::make_unique<Cell>(&*table, CellType{1}); }

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
            body->addCells(row);
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
        chart.addGPLGraphToProcedureJSON();
        return chart;
    }

    Guest& readRecord()
    {
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

    std::optional<BpProcedure> procedure{std::in_place, "GUEST", 10};
    ProcedureDataSource source;
    std::optional<ACAVarValidSpecs> validSpecs{std::in_place, true, true, true};
    std::optional<ACAInputAdapter> adapter{std::in_place, *validSpecs, source};
    std::optional<ACAProcDataSourceIter> iterator;
    const RecKit::Record* record = nullptr;
    const RecKit::Record* previous = nullptr;
    std::optional<StatJSONGenerator> document{std::in_place, "title", ""};
    StatJSONConverter converter{*procedure};
    std::string tableName = "table";
    std::optional<Table> table{std::in_place, &*document, tableName};
    std::optional<Cell> spare{std::in_place, &*table, CellType{1}};
    std::optional<Dimension> dimension{std::in_place, &*table, group().release(), group().release()};
    std::optional<Cells> body{std::in_place, &*table};
    std::unique_ptr<Descendants> tree = group();
    std::vector<double> numbers{1};
    std::vector<std::string> texts{"1"};
    Chart chart{&*document, "chart"};
};

}  // namespace tests
