// What the documents of a run are rendered from.
#pragma once

#include "report/drawing/drawn_plots.h"

#include <rapidjson/document.h>

#include <list>
#include <string>

namespace report {

struct Report {
    const std::list<rapidjson::Document>& documents;  ///< in the order of delivery, at least one
    std::string language;                             ///< the code that was asked for
    DrawnPlots& plots;                                ///< of these documents
};

}  // namespace report
