// The variables of the active data set. The module copies one while it declares it.
#pragma once

#include "this_host.h"

namespace QUVO_Variable_Enumerations {
enum class MeasurementLevel : short {};  // 1, 2 and 3 are agreed
}  // namespace QUVO_Variable_Enumerations
using QUVO_Variable_Enumerations::MeasurementLevel;

struct QUVO_VLImplPointer {};

/// Asked for at level 1 and 2 only.
struct QUVO_ValueLabelMap {
    explicit QUVO_ValueLabelMap(QUVO_VLImplPointer) {}

    unsigned Size() { return 0; }
};

struct QUVO_Variable : other::Variable {
    explicit QUVO_Variable(const other::Variable& described)
        : Variable(described)
    {
    }

    auto GetMeasurementLevel() { return call("QUVO_Variable::GetMeasurementLevel"), MeasurementLevel{level}; }
    char* GetName() { return call("QUVO_Variable::GetName"), name.data(); }
    char* GetLabel() { return call("QUVO_Variable::GetLabel") ? name.data() : nullptr; }
    QUVO_VLImplPointer GetValueLabels() { return {}; }
};

/// A name as it passes between parser and validator.
struct QuvoVarName {
    explicit QuvoVarName(std::string text) { name.swap(text); }

    std::string name;
};

struct QUVO_DataSource : other::Object {
    virtual unsigned ColumnCount() = 0;
    virtual QUVO_Variable& GetVariable(int index) = 0;
};
