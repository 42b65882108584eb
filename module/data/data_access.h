// The host objects of one read of the active data set, and the pair of them that a reading loop needs.
#pragma once

#include "host/case_adapter.h"
#include "host/procedure.h"
#include "module/data/algorithm_var_list.h"

#include <memory>
#include <vector>

namespace bldatman {

/// What a reading loop is given: the cases and the description of their values. Owns neither.
class AlgoDataAccess {
public:
    AlgoDataAccess(RecKit::RecordIterator& iterator, const AlgorithmVarList& varList);
    virtual ~AlgoDataAccess() = default;
    AlgoDataAccess(const AlgoDataAccess&) = delete;
    AlgoDataAccess& operator=(const AlgoDataAccess&) = delete;

    RecKit::RecordIterator& getIterator() const { return *iterator_; }
    const AlgorithmVarList& getVarList() const { return *varList_; }

private:
    RecKit::RecordIterator* iterator_;
    const AlgorithmVarList* varList_;
};

/// The three flags with which every variable is declared; what they mean is the host's.
struct AddVariableFlags {
    bool first;
    bool second;
    bool third;
};

/// Makes and owns the objects of one read.
class AlgoDataAccessFactory {
public:
    AlgoDataAccessFactory() = default;
    ~AlgoDataAccessFactory();
    AlgoDataAccessFactory(const AlgoDataAccessFactory&) = delete;
    AlgoDataAccessFactory& operator=(const AlgoDataAccessFactory&) = delete;

    /// Declares the variables at `indices`, in this order, and opens their cases. An index that the data source does
    /// not have is skipped. The result belongs to the factory; a second call returns it again and does nothing else.
    /// Passes on what the host raises.
    AlgoDataAccess& createDataAccess(const std::vector<int>& indices, ProcedureDataSource& source,
                                     AddVariableFlags flags);

private:
    void declareVariables(const std::vector<int>& indices, ProcedureDataSource& source, AddVariableFlags flags);
    void describe(QUVO_Variable& variable);

    std::unique_ptr<ACAVarValidSpecs> validSpecs_;
    std::unique_ptr<ACAInputAdapter> adapter_;
    std::unique_ptr<ACAProcDataSourceIter> iterator_;
    std::unique_ptr<AlgoDataAccess> access_;
    std::unique_ptr<AlgorithmVarList> varList_;
};

}  // namespace bldatman
