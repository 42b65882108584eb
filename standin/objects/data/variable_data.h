// What lies behind the host's handles on variables.
#pragma once

#include "host/data_source.h"
#include "standin/data/data_set.h"

#include <string>

struct QUVO_VLImplPointer::Data {
    const standin::Variable* variable;
};

struct QUVO_Variable::Data {
    explicit Data(const standin::Variable* ofSession)
        : variable(ofSession)
        , labels{ofSession}
    {
    }

    const standin::Variable* variable;  ///< of the session's data set
    QUVO_VLImplPointer::Data labels;
};

struct QuvoVarName::Data {
    std::string name;
    /// Why the validator must refuse this name although it may exist, for instance a range that runs backwards.
    std::string refusal;
};
