#include "module/data/case_reader.h"

#include "module/data/data_access.h"
#include "module/diagnostics.h"

namespace bldatman {

namespace {

/// `Record` is the host's, constant or not.
template <class Record>
void appendRecord(Record& record, std::vector<Column>& columns)
{
    const auto size = static_cast<unsigned>(record.Size());
    const double* values = record.GetAll();
    if (values == nullptr) {
        return;
    }
    if (columns.size() < size) {
        columns.resize(size);
    }
    for (unsigned j = 0; j < size; ++j) {
        columns[j].push_back(values[j]);
    }
}

}  // namespace

void readCaseColumns(const std::vector<int>& indices, ProcedureDataSource& source, std::vector<Column>& columns)
{
    try {
        AlgoDataAccessFactory factory;
        RecKit::RecordIterator& cases = factory.createDataAccess(indices, source, {true, true, true}).getIterator();
        while (cases.HasMore()) {
            if (auto* record = cases.Next()) {
                appendRecord(*record, columns);
            }
        }
    } catch (...) {
        reportCurrentException("");
    }
}

}  // namespace bldatman
