#include "host/procedure.h"

#include "standin/border/host_call.h"
#include "standin/objects/data/variable_data.h"
#include "standin/session/session.h"

#include <vector>

using standin::HostCall;

/// This host needs to know nothing of a procedure but that it is alive.
struct BpProcedure::Data {};

BpProcedure::BpProcedure(std::string name, int code)
{
    HostCall call(HostCall::Constructor{}, "BpProcedure::BpProcedure", name, code);
    data = std::make_unique<Data>();
    call.creates(this);
}

BpProcedure::~BpProcedure()
{
    HostCall call(HostCall::Destructor{}, this, "BpProcedure::~BpProcedure");
    data.reset();
}

struct ProcedureDataSource::Data {
    std::vector<std::unique_ptr<QUVO_Variable>> variables;
};

ProcedureDataSource::ProcedureDataSource()
{
    HostCall call(HostCall::Constructor{}, "ProcedureDataSource::ProcedureDataSource");
    data = std::make_unique<Data>();
    for (const standin::Variable& variable : standin::Session::current().dataSet.variables) {
        data->variables.push_back(std::make_unique<QUVO_Variable>(std::make_unique<QUVO_Variable::Data>(&variable)));
    }
    call.creates(this);
}

ProcedureDataSource::~ProcedureDataSource()
{
    HostCall call(HostCall::Destructor{}, this, "ProcedureDataSource::~ProcedureDataSource");
    data.reset();
}

unsigned ProcedureDataSource::columnCount() const
{
    return static_cast<unsigned>(data->variables.size());
}

QUVO_Variable& ProcedureDataSource::variable(int index)
{
    return *data->variables[static_cast<std::size_t>(index)];
}
