// The cases: the module declares variables, puts an adapter over them and an iterator over that, and takes one record a
// case, with a value for each variable in the order of declaration.
#pragma once

#include "host/missing_value.h"
#include "this_host.h"

struct ProcedureDataSource;

namespace RecKit {

/// The module copies the values before it asks for the next record. It passes over a null record and over null values.
struct Record {
    short Size() { return call("RecKit::Record::Size"), static_cast<short>(values.size()); }
    double* GetAll() { return call("RecKit::Record::GetAll") ? values.data() : nullptr; }

    std::vector<double> values;
};

struct RecordIterator : other::Object {
    virtual bool HasMore() = 0;
    virtual Record* Next() = 0;
};

}  // namespace RecKit

struct ACAVarValidSpecs : other::Object {
    ACAVarValidSpecs(bool first, bool second, bool third) { begin("ACAVarValidSpecs", first, second, third); }

    virtual bool AddVariable(int column, bool flag, bool first, bool second, bool third)
    {
        positions.push_back(static_cast<std::size_t>(column));
        return call("ACAVarValidSpecs::AddVariable", column, flag, first, second, third);
    }

    std::vector<std::size_t> positions;
};

/// Both arguments outlive it.
struct ACAInputAdapter : other::Object {
    ACAInputAdapter(ACAVarValidSpecs& declared, ProcedureDataSource&) { begin("ACAInputAdapter"), kept = &declared; }

    ACAVarValidSpecs* kept = nullptr;
};

/// The adapter outlives it.
struct ACAProcDataSourceIter : virtual RecKit::RecordIterator {
    ACAProcDataSourceIter(ACAInputAdapter& over, bool flag) { begin("ACAProcDataSourceIter", flag), adapter = &over; }

    bool HasMore() override { return call("RecKit::RecordIterator::HasMore"), next < theHost.cases.size(); }

    /// A row that lacks values makes a shorter record; a value beyond the variables comes last.
    RecKit::Record* Next() override
    {
        const std::vector<double>& row = theHost.cases[next++];
        std::vector<std::size_t> positions = adapter->kept->positions;
        positions.push_back(theHost.variables.size());
        record.values.clear();
        for (const std::size_t position : positions) {
            if (position < row.size()) {
                record.values.push_back(row[position]);
            }
        }
        return call("RecKit::RecordIterator::Next") ? &record : nullptr;
    }

    ACAInputAdapter* adapter = nullptr;
    std::size_t next = 0;
    RecKit::Record record;
};
