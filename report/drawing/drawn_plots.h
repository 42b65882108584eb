// The plots of the graphs of a run's documents.
#pragma once

#include "report/drawing/drawn_plot.h"

#include <rapidjson/document.h>

#include <cstddef>
#include <functional>
#include <list>
#include <unordered_map>

namespace report {

/// Told now and then how many plots of how many are drawn.
using Progress = std::function<void(std::size_t drawn, std::size_t total)>;

class DrawnPlots {
public:
    /// Draws nothing yet. The documents outlive the plots and do not change.
    /// @param progress  is told of plots, the last time that all are drawn, whatever became of them
    DrawnPlots(const std::list<rapidjson::Document>& documents, Progress progress);

    /// The plot of a graph of these documents. All are drawn when the first is asked for, by one process of gnuplot.
    const DrawnPlot& of(const rapidjson::Value& graph);

private:
    void drawAll();

    const std::list<rapidjson::Document>& documents_;
    Progress progress_;
    std::unordered_map<const rapidjson::Value*, DrawnPlot> plots_;
};

}  // namespace report
