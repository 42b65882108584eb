// Contract of the host's case adapter and record libraries: how the cases of the active data set are delivered.
//
// The module declares the variables it wants on a validity specification, puts an adapter over it and an iterator over
// the adapter, and takes one record per case, in data-set order, each with one value per declared variable, in the
// order of declaration. A missing value arrives as `systemMissingValue`.
#pragma once

#include "host/missing_value.h"

#include <memory>

class ProcedureDataSource;

namespace RecKit {

/// The values of one case. A record belongs to its iterator and is valid until the next `Next` or the iterator's end;
/// its values are the host's and must be copied, neither changed nor kept.
class Record {
public:
    /// The number of values.
    int Size() const;

    /// `Size()` values in one piece, or null when the record has none to give.
    const double* GetAll() const;

    struct Data;                                  ///< the host's own
    explicit Record(std::unique_ptr<Data> made);  ///< for the host alone
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;
    ~Record();
    std::unique_ptr<Data> data;
};

/// Delivers records one after the other.
class RecordIterator {
public:
    virtual ~RecordIterator() = default;

    /// True while records remain.
    bool HasMore();

    /// The next record, or null; owned by the iterator.
    const Record* Next();

private:
    virtual bool hasMore() = 0;
    virtual const Record* next() = 0;
};

/// The base of the iterators over cases; the module reads one pass and never asks for another.
class MultiPassRecordIter : public RecordIterator {};

}  // namespace RecKit

/// The list of variables to deliver. The meaning of its flags is the host's.
class ACAVarValidSpecs {
public:
    /// This procedure passes true three times.
    ACAVarValidSpecs(bool first, bool second, bool third);
    virtual ~ACAVarValidSpecs();
    ACAVarValidSpecs(const ACAVarValidSpecs&) = delete;
    ACAVarValidSpecs& operator=(const ACAVarValidSpecs&) = delete;

    /// Declares the variable at position `column` of the data source as the next one to deliver. The result is the
    /// host's. This procedure passes false, then true three times.
    int AddVariable(int column, bool flag, bool first, bool second, bool third);

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// The host's adapter between a data source and its readers. It keeps references to both arguments.
class ACAInputAdapter {
public:
    ACAInputAdapter(ACAVarValidSpecs& validSpecs, ProcedureDataSource& source);
    virtual ~ACAInputAdapter();
    ACAInputAdapter(const ACAInputAdapter&) = delete;
    ACAInputAdapter& operator=(const ACAInputAdapter&) = delete;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// The cases behind an adapter, from the first one on; ready to be asked `HasMore` as soon as it is made.
class ACAProcDataSourceIter : public RecKit::MultiPassRecordIter {
public:
    /// The iterator keeps a reference to the adapter. The flag's meaning is the host's; this procedure passes true.
    ACAProcDataSourceIter(ACAInputAdapter& adapter, bool flag);
    ~ACAProcDataSourceIter() override;
    ACAProcDataSourceIter(const ACAProcDataSourceIter&) = delete;
    ACAProcDataSourceIter& operator=(const ACAProcDataSourceIter&) = delete;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;

private:
    bool hasMore() override;
    const RecKit::Record* next() override;
};
