#include "report/drawing/drawn_plots.h"

#include "report/document/document_view.h"
#include "report/drawing/gnuplot.h"
#include "report/drawing/gnuplot_script.h"
#include "report/drawing/svg_rewriting.h"
#include "report/plots/plot_error.h"
#include "report/plots/plot_reader.h"
#include "text/wording.h"

#include <string>
#include <utility>
#include <vector>

namespace report {

namespace {

/// The commands that draw a graph; none where `drawn` is given the reason. It is given its title and label as well.
std::string scriptFor(const rapidjson::Value& graph, DrawnPlot& drawn)
{
    try {
        const Plot plot = readPlot(graph);
        drawn.title = text::printable(plot.title);
        drawn.xLabel = plot.xLabel;
        return gnuplotScript(plot);
    } catch (const PlotError& error) {
        drawn.reason = error.what();
        return "";
    }
}

std::vector<DrawnPlot> draw(const std::vector<std::string>& scripts, const std::function<void(std::size_t)>& drawn)
{
    try {
        return drawWithGnuplot(scripts, drawn);
    } catch (const PlotError& error) {
        return std::vector<DrawnPlot>(scripts.size(), {.reason = error.what()});
    }
}

/// Takes over what gnuplot made of a plot, unless it has a reason already.
void finish(DrawnPlot& plot, const DrawnPlot& raw, const std::string& titleId)
{
    try {
        if (plot.reason.empty()) {
            plot.reason = raw.reason;
        }
        if (plot.reason.empty()) {
            plot.svg = rewriteSvg(raw.svg, titleId, plot.title);
        }
    } catch (const PlotError& error) {
        plot.reason = error.what();
    }
}

}  // namespace

DrawnPlots::DrawnPlots(const std::list<rapidjson::Document>& documents, Progress progress)
    : documents_(documents)
    , progress_(std::move(progress))
{
}

const DrawnPlot& DrawnPlots::of(const rapidjson::Value& graph)
{
    if (plots_.empty()) {
        drawAll();
    }
    return plots_.at(&graph);
}

void DrawnPlots::drawAll()
{
    const auto graphs = graphsOf(documents_);
    std::vector<DrawnPlot> plots(graphs.size());
    std::vector<std::string> scripts(graphs.size());
    for (std::size_t i = 0; i < graphs.size(); ++i) {
        scripts[i] = scriptFor(*graphs[i], plots[i]);
    }
    const std::vector<DrawnPlot> raw = draw(scripts, [&](std::size_t drawn) { progress_(drawn, graphs.size()); });
    for (std::size_t i = 0; i < graphs.size(); ++i) {
        finish(plots[i], raw[i], "plot-" + std::to_string(i + 1) + "-title");
        plots_[graphs[i]] = std::move(plots[i]);
    }
    progress_(graphs.size(), graphs.size());
}

}  // namespace report
