#include "report/drawing/drawn_plots.h"

#include "report/document/document_view.h"
#include "report/drawing/child_process.h"
#include "report/drawing/gnuplot.h"
#include "report/drawing/gnuplot_script.h"
#include "report/drawing/svg_rewriting.h"
#include "report/plots/plot.h"
#include "text/wording.h"

#include <utility>
#include <vector>

namespace report {

namespace {

/// What is known of a picture before it is drawn.
struct Sketch {
    std::string title;
    std::string script;  ///< empty when there is a reason
    std::string reason;
};

Sketch sketch(const rapidjson::Value& graph)
{
    try {
        const Chart chart = readChart(graph);
        return {text::printable(chart.title), gnuplotScript(chart), ""};
    } catch (const ChartError& error) {
        return {"", "", error.what()};
    }
}

std::vector<Sketch> sketchAll(const std::vector<const rapidjson::Value*>& graphs)
{
    std::vector<Sketch> sketches;
    sketches.reserve(graphs.size());
    for (const rapidjson::Value* graph : graphs) {
        sketches.push_back(sketch(*graph));
    }
    return sketches;
}

/// Takes the scripts out of the sketches.
std::vector<Drawing> draw(std::vector<Sketch>& sketches, const std::function<void(std::size_t)>& drawn)
{
    std::vector<std::string> scripts;
    scripts.reserve(sketches.size());
    for (Sketch& known : sketches) {
        scripts.push_back(std::move(known.script));
    }
    try {
        return drawWithGnuplot(scripts, drawn);
    } catch (const ProcessError& error) {
        return std::vector<Drawing>(scripts.size(), Drawing{"", error.what()});
    }
}

Picture finish(const Sketch& sketch, const Drawing& drawing, const std::string& titleId)
{
    const std::string& reason = sketch.reason.empty() ? drawing.reason : sketch.reason;
    if (!reason.empty()) {
        return {"", reason};
    }
    try {
        return {rewriteSvg(drawing.svg, titleId, sketch.title), ""};
    } catch (const SvgError& error) {
        return {"", error.what()};
    }
}

}  // namespace

PictureBook::PictureBook(const std::list<rapidjson::Document>& documents, Progress progress)
    : documents_(documents)
    , progress_(std::move(progress))
{
}

const Picture& PictureBook::pictureOf(const rapidjson::Value& graph)
{
    if (pictures_.empty()) {
        drawAll();
    }
    return pictures_.at(&graph);
}

void PictureBook::drawAll()
{
    const auto graphs = graphsOf(documents_);
    std::vector<Sketch> sketches = sketchAll(graphs);
    const std::vector<Drawing> drawings = draw(sketches, [&](std::size_t drawn) { progress_(drawn, graphs.size()); });
    for (std::size_t i = 0; i < graphs.size(); ++i) {
        const std::string titleId = "plot-" + std::to_string(i + 1) + "-title";
        pictures_[graphs[i]] = finish(sketches[i], drawings[i], titleId);
    }
    progress_(graphs.size(), graphs.size());
}

}  // namespace report
