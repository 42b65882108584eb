#include "host/data_source.h"

#include "standin/border/host_call.h"
#include "standin/objects/data/variable_data.h"

#include <utility>

using standin::HostCall;

struct QUVO_ValueLabelMap::Data {
    const standin::Variable* variable;
};

QUVO_ValueLabelMap::QUVO_ValueLabelMap(const QUVO_VLImplPointer& labels)
{
    HostCall call(HostCall::Constructor{}, "QUVO_ValueLabelMap::QUVO_ValueLabelMap", labels);
    data = std::make_unique<Data>(Data{labels.data->variable});
    call.creates(this);
}

QUVO_ValueLabelMap::~QUVO_ValueLabelMap()
{
    HostCall call(HostCall::Destructor{}, this, "QUVO_ValueLabelMap::~QUVO_ValueLabelMap");
    data.reset();
}

unsigned QUVO_ValueLabelMap::Size() const
{
    HostCall call(this, "QUVO_ValueLabelMap::Size");
    return static_cast<unsigned>(data->variable->valueLabels.size());
}

QUVO_Variable::QUVO_Variable(std::unique_ptr<Data> made)
{
    HostCall call(HostCall::Constructor{}, "QUVO_Variable::QUVO_Variable");
    data = std::move(made);
    call.creates(this);
}

QUVO_Variable::QUVO_Variable(const QUVO_Variable& other)
{
    HostCall call(HostCall::Constructor{}, "QUVO_Variable::QUVO_Variable");
    call.requireAlive(&other, "the variable to copy");
    data = std::make_unique<Data>(other.data->variable);
    call.creates(this);
}

QUVO_Variable::~QUVO_Variable()
{
    HostCall call(HostCall::Destructor{}, this, "QUVO_Variable::~QUVO_Variable");
    data.reset();
}

QUVO_Variable_Enumerations::MeasurementLevel QUVO_Variable::GetMeasurementLevel() const
{
    HostCall call(this, "QUVO_Variable::GetMeasurementLevel");
    return data->variable->level;
}

const char* QUVO_Variable::GetName() const
{
    HostCall call(this, "QUVO_Variable::GetName");
    return data->variable->name.c_str();
}

const char* QUVO_Variable::GetLabel() const
{
    HostCall call(this, "QUVO_Variable::GetLabel");
    return data->variable->label.empty() ? nullptr : data->variable->label.c_str();
}

QUVO_VLImplPointer QUVO_Variable::GetValueLabels() const
{
    HostCall call(this, "QUVO_Variable::GetValueLabels");
    return {&data->labels};
}

QuvoVarName::QuvoVarName(const char* name)
{
    HostCall call(HostCall::Constructor{}, "QuvoVarName::QuvoVarName", name);
    call.require(name != nullptr, "the name is null");
    data = std::make_unique<Data>(Data{name, {}});  // NOLINT(clang-analyzer-cplusplus.StringChecker): checked above
    call.creates(this);
}

QuvoVarName::QuvoVarName(const QuvoVarName& other)
{
    HostCall call(HostCall::Constructor{}, "QuvoVarName::QuvoVarName");
    data = std::make_unique<Data>(*other.data);
    call.creates(this);
}

QuvoVarName& QuvoVarName::operator=(const QuvoVarName& other)
{
    HostCall call(this, "QuvoVarName::operator=");
    if (this != &other) {
        *data = *other.data;
    }
    return *this;
}

QuvoVarName::~QuvoVarName()
{
    HostCall call(HostCall::Destructor{}, this, "QuvoVarName::~QuvoVarName");
    data.reset();
}

unsigned QUVO_DataSource::ColumnCount() const
{
    HostCall call(this, "QUVO_DataSource::ColumnCount");
    return columnCount();
}

QUVO_Variable& QUVO_DataSource::GetVariable(int index)
{
    HostCall call(this, "QUVO_DataSource::GetVariable", index);
    if (static_cast<unsigned>(index) >= columnCount()) {
        call.fail("there is no variable " + std::to_string(index));
    }
    return variable(index);
}
