// The running procedure and its active data set: made first, destroyed last.
#pragma once

#include "host/data_source.h"

struct BpProcedure : other::Object {
    BpProcedure(std::string command, int code) { begin("BpProcedure", name = command, code); }
};

/// The host knows which data set is active.
struct ProcedureDataSource : QUVO_DataSource {
    ProcedureDataSource() { begin("ProcedureDataSource"); }

    unsigned ColumnCount() override { return call("QUVO_DataSource::ColumnCount"), columnCount; }
    QUVO_Variable& GetVariable(int i) override
    {
        return call("QUVO_DataSource::GetVariable", i), *(variables.data() + i);
    }

    unsigned columnCount = static_cast<unsigned>(theHost.variables.size());
    std::vector<QUVO_Variable> variables{theHost.variables.begin(), theHost.variables.end()};
};
