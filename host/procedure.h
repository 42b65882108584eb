// Contract of the host's procedure framework: the two objects that stand for the running procedure and for its
// active data set. The module creates both first and destroys them last.
#pragma once

#include "host/data_source.h"

#include <memory>
#include <string>

/// The running procedure, as the host's output and common output know it.
class BpProcedure {
public:
    /// @param name  the command's name, upper case
    /// @param code  a number whose meaning is the host's; this procedure passes 10
    BpProcedure(std::string name, int code);
    ~BpProcedure();
    BpProcedure(const BpProcedure&) = delete;
    BpProcedure& operator=(const BpProcedure&) = delete;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;
};

/// The active data set, seen by the module through `QUVO_DataSource` alone.
class ProcedureDataSource : public QUVO_DataSource {
public:
    ProcedureDataSource();
    ~ProcedureDataSource() override;

    struct Data;  ///< the host's own
    std::unique_ptr<Data> data;

private:
    unsigned columnCount() const override;
    QUVO_Variable& variable(int index) override;
};
