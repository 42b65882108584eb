#include "host/case_adapter.h"

#include "host/procedure.h"
#include "standin/border/host_call.h"
#include "standin/session/session.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

using standin::HostCall;

struct RecKit::Record::Data {
    std::vector<double> values;
};

RecKit::Record::Record(std::unique_ptr<Data> made)
    : data(std::move(made))
{
}

RecKit::Record::~Record() = default;

int RecKit::Record::Size() const
{
    HostCall call(this, "RecKit::Record::Size");
    return static_cast<int>(data->values.size());
}

const double* RecKit::Record::GetAll() const
{
    HostCall call(this, "RecKit::Record::GetAll");
    return data->values.data();
}

bool RecKit::RecordIterator::HasMore()
{
    HostCall call(this, "RecKit::RecordIterator::HasMore");
    return hasMore();
}

const RecKit::Record* RecKit::RecordIterator::Next()
{
    HostCall call(this, "RecKit::RecordIterator::Next");
    call.require(hasMore(), "no case is left");
    return next();
}

struct ACAVarValidSpecs::Data {
    std::vector<std::size_t> columns;
};

ACAVarValidSpecs::ACAVarValidSpecs(bool first, bool second, bool third)
{
    HostCall call(HostCall::Constructor{}, "ACAVarValidSpecs::ACAVarValidSpecs", first, second, third);
    data = std::make_unique<Data>();
    call.creates(this);
}

ACAVarValidSpecs::~ACAVarValidSpecs()
{
    HostCall call(HostCall::Destructor{}, this, "ACAVarValidSpecs::~ACAVarValidSpecs");
    data.reset();
}

int ACAVarValidSpecs::AddVariable(int column, bool flag, bool first, bool second, bool third)
{
    HostCall call(this, "ACAVarValidSpecs::AddVariable", column, flag, first, second, third);
    if (column < 0 || static_cast<std::size_t>(column) >= standin::Session::current().dataSet.variables.size()) {
        call.fail("there is no variable " + std::to_string(column));
    }
    data->columns.push_back(static_cast<std::size_t>(column));
    return 0;
}

struct ACAInputAdapter::Data {
    ACAVarValidSpecs* validSpecs;
};

ACAInputAdapter::ACAInputAdapter(ACAVarValidSpecs& validSpecs, ProcedureDataSource& source)
{
    HostCall call(HostCall::Constructor{}, "ACAInputAdapter::ACAInputAdapter", validSpecs, source);
    call.requireAlive(&validSpecs, "the validity specification");
    call.requireAlive(&source, "the data source");
    data = std::make_unique<Data>(Data{&validSpecs});
    call.creates(this);
}

ACAInputAdapter::~ACAInputAdapter()
{
    HostCall call(HostCall::Destructor{}, this, "ACAInputAdapter::~ACAInputAdapter");
    data.reset();
}

/// Hands out two records in turn, so that one which the module kept beyond its time is known as not alive, and knows
/// what it had put into the last one, so that a change is seen.
struct ACAProcDataSourceIter::Data {
    ACAInputAdapter* adapter = nullptr;
    std::vector<const std::vector<double>*> columns;
    std::size_t nextCase = 0;
    std::array<std::unique_ptr<RecKit::Record>, 2> records;

    RecKit::Record* lastRecord() const { return nextCase == 0 ? nullptr : records[(nextCase - 1) % 2].get(); }

    void fill(RecKit::Record& record) const
    {
        for (std::size_t j = 0; j < columns.size(); ++j) {
            record.data->values[j] = (*columns[j])[nextCase];
        }
    }

    /// What the module reads through a pointer that it kept too long shows as no number.
    static void spoil(RecKit::Record& record)
    {
        std::ranges::fill(record.data->values, std::numeric_limits<double>::quiet_NaN());
    }

    bool isUnchanged(const RecKit::Record& record) const
    {
        for (std::size_t j = 0; j < columns.size(); ++j) {
            // Bit by bit: a value that is not a number equals nothing.
            const auto given = std::bit_cast<std::uint64_t>((*columns[j])[nextCase - 1]);
            if (given != std::bit_cast<std::uint64_t>(record.data->values[j])) {
                return false;
            }
        }
        return true;
    }
};

ACAProcDataSourceIter::ACAProcDataSourceIter(ACAInputAdapter& adapter, bool flag)
{
    HostCall call(HostCall::Constructor{}, "ACAProcDataSourceIter::ACAProcDataSourceIter", adapter, flag);
    call.requireAlive(&adapter, "the adapter");
    call.requireAlive(adapter.data->validSpecs, "the validity specification");
    data = std::make_unique<Data>();
    data->adapter = &adapter;
    for (const std::size_t column : adapter.data->validSpecs->data->columns) {
        data->columns.push_back(&standin::Session::current().dataSet.variables[column].values);
    }
    for (auto& record : data->records) {
        auto content = std::make_unique<RecKit::Record::Data>();
        content->values.resize(data->columns.size());
        record = std::make_unique<RecKit::Record>(std::move(content));
    }
    call.creates(this);
}

ACAProcDataSourceIter::~ACAProcDataSourceIter()
{
    HostCall call(HostCall::Destructor{}, this, "ACAProcDataSourceIter::~ACAProcDataSourceIter");
    if (const RecKit::Record* last = data->lastRecord()) {
        call.retire(last);
        if (!data->isUnchanged(*last)) {
            call.noteBreach("the values of the last record were changed");
        }
    }
    data.reset();
}

bool ACAProcDataSourceIter::hasMore()
{
    return data->nextCase < standin::Session::current().dataSet.caseCount;
}

const RecKit::Record* ACAProcDataSourceIter::next()
{
    // Not a second call: inside `Next`, under its name for what is found wrong here.
    HostCall call(this, "RecKit::RecordIterator::Next");
    call.requireAlive(data->adapter, "the adapter");
    if (RecKit::Record* last = data->lastRecord()) {
        call.require(data->isUnchanged(*last), "the values of the last record were changed");
        call.retire(last);
        data->spoil(*last);
    }
    RecKit::Record& record = *data->records[data->nextCase % 2];
    data->fill(record);
    ++data->nextCase;
    call.lends(&record);
    return &record;
}
