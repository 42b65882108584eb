#include "module/data/data_access.h"

#include "host/data_source.h"

#include <string>

namespace bldatman {

namespace {

using MeasurementLevel = QUVO_Variable_Enumerations::MeasurementLevel;

const auto levelNominal = static_cast<MeasurementLevel>(1);
const auto levelOrdinal = static_cast<MeasurementLevel>(2);

}  // namespace

AlgoDataAccess::AlgoDataAccess(RecKit::RecordIterator& iterator, const AlgorithmVarList& varList)
    : iterator_(&iterator)
    , varList_(&varList)
{
}

AlgoDataAccessFactory::~AlgoDataAccessFactory()
{
    // Not the reverse of the members: the users go before what they use, the description last.
    access_.reset();
    iterator_.reset();
    adapter_.reset();
    validSpecs_.reset();
    varList_.reset();
}

AlgoDataAccess& AlgoDataAccessFactory::createDataAccess(const std::vector<int>& indices, ProcedureDataSource& source,
                                                        AddVariableFlags flags)
{
    if (access_ == nullptr) {
        validSpecs_ = std::make_unique<ACAVarValidSpecs>(true, true, true);
        declareVariables(indices, source, flags);
        adapter_ = std::make_unique<ACAInputAdapter>(*validSpecs_, source);
        iterator_ = std::make_unique<ACAProcDataSourceIter>(*adapter_, true);
        access_ = std::make_unique<AlgoDataAccess>(*iterator_, *varList_);
    }
    return *access_;
}

void AlgoDataAccessFactory::declareVariables(const std::vector<int>& indices, ProcedureDataSource& source,
                                             AddVariableFlags flags)
{
    const unsigned columnCount = source.ColumnCount();
    varList_ = std::make_unique<AlgorithmVarList>();
    for (const int index : indices) {
        if (static_cast<unsigned>(index) < columnCount) {
            QUVO_Variable variable = source.GetVariable(index);
            describe(variable);
            validSpecs_->AddVariable(index, false, flags.first, flags.second, flags.third);
        }
    }
}

/// Adds a variable to the description. A duplicate or an empty name leaves it one entry short, which nobody minds:
/// the host still delivers the variable.
void AlgoDataAccessFactory::describe(QUVO_Variable& variable)
{
    const auto level = variable.GetMeasurementLevel();
    const std::string name = variable.GetName();
    const char* ownLabel = variable.GetLabel();
    const std::string label = ownLabel != nullptr ? ownLabel : name;
    const bool nominal = level == levelNominal;
    if (nominal || level == levelOrdinal) {
        const unsigned categoryCount = QUVO_ValueLabelMap(variable.GetValueLabels()).Size();
        varList_->addCategorical(name, label, categoryCount, nominal);
    } else {
        varList_->addContinuous(name, label);
    }
}

}  // namespace bldatman
