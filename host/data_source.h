// Contract of the host's data source library: the variables of the active data set and what is known of each.
#pragma once

#include <memory>
#include <string>

namespace QUVO_Variable_Enumerations {
/// 1 is nominal, 2 ordinal, 3 scale; the meaning of any other value is the host's.
enum MeasurementLevel : int {};
}  // namespace QUVO_Variable_Enumerations

/// A handle on the value labels of one variable; owned by the variable and valid as long as it.
class QUVO_VLImplPointer {
public:
    struct Data;  ///< the host's own
    const Data* data = nullptr;
};

/// A view of value labels.
class QUVO_ValueLabelMap {
public:
    explicit QUVO_ValueLabelMap(const QUVO_VLImplPointer& labels);
    ~QUVO_ValueLabelMap();
    QUVO_ValueLabelMap(const QUVO_ValueLabelMap&) = delete;
    QUVO_ValueLabelMap& operator=(const QUVO_ValueLabelMap&) = delete;

    /// How many values carry a label.
    unsigned Size() const;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// One variable of the data source. References that the data source hands out stay valid as long as it does; the
/// module may also keep a copy of its own.
class QUVO_Variable {
public:
    QUVO_Variable(const QUVO_Variable& other);
    QUVO_Variable& operator=(const QUVO_Variable&) = delete;
    ~QUVO_Variable();

    QUVO_Variable_Enumerations::MeasurementLevel GetMeasurementLevel() const;

    /// The name, zero-terminated, in the host's encoding; never null, owned by this object.
    const char* GetName() const;

    /// The label, or null when the variable has none; owned by this object.
    const char* GetLabel() const;

    /// A handle on the value labels, for `QUVO_ValueLabelMap`; valid as long as this object.
    QUVO_VLImplPointer GetValueLabels() const;

    struct Data;                                         ///< the host's own
    explicit QUVO_Variable(std::unique_ptr<Data> made);  ///< for the host alone
    std::unique_ptr<Data> data;
};

/// A variable's name as the parser and its validator pass it around; a value, freely copied.
class QuvoVarName {
public:
    explicit QuvoVarName(const char* name);
    QuvoVarName(const QuvoVarName& other);
    QuvoVarName& operator=(const QuvoVarName& other);
    ~QuvoVarName();

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// Any source of cases. The variables are numbered from 0 in data-set order.
class QUVO_DataSource {
public:
    virtual ~QUVO_DataSource() = default;

    /// The number of variables.
    unsigned ColumnCount() const;

    /// The variable at a position below `ColumnCount()`; owned by the data source.
    QUVO_Variable& GetVariable(int index);

private:
    virtual unsigned columnCount() const = 0;
    virtual QUVO_Variable& variable(int index) = 0;
};
