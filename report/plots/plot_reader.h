// The plot of a graph, as its statements and its columns say.
#pragma once

#include "report/plots/plot.h"

#include <rapidjson/document.h>

namespace report {

/// @param graph  a graph object of a document
/// @throws PlotError  when a statement cannot be followed; says which one and why
Plot readPlot(const rapidjson::Value& graph);

}  // namespace report
