#include "standin/drawing/picture_book.h"

#include "standin/drawing/chart.h"
#include "standin/drawing/child_process.h"
#include "standin/drawing/gnuplot.h"
#include "standin/drawing/gnuplot_script.h"
#include "standin/drawing/svg_picture.h"
#include "standin/text.h"

#include <utility>

namespace standin {

namespace {

std::vector<const rapidjson::Value*> graphsOf(const rapidjson::Document& document)
{
    std::vector<const rapidjson::Value*> graphs;
    for (const rapidjson::Value& object : document["objects"].GetArray()) {
        if (object["type"] == "graph") {
            graphs.push_back(&object);
        }
    }
    return graphs;
}

std::size_t countGraphs(const std::list<rapidjson::Document>& documents)
{
    std::size_t count = 0;
    for (const rapidjson::Document& document : documents) {
        count += graphsOf(document).size();
    }
    return count;
}

/// What is known of a picture before it is drawn.
struct Sketch {
    std::string title;
    std::string horizontalAxis;
    std::string script;  ///< empty when there is a reason
    std::string reason;
};

Sketch sketch(const rapidjson::Value& graph)
{
    try {
        const Chart chart = readChart(graph);
        return {printable(chart.title), chart.xLabel, gnuplotScript(chart), ""};
    } catch (const ChartError& error) {
        return {"", "", "", error.what()};
    }
}

Picture finish(const Sketch& sketch, const Drawing& drawing, const std::string& id)
{
    Picture picture{"", sketch.reason.empty() ? drawing.reason : sketch.reason, sketch.horizontalAxis};
    if (picture.reason.empty()) {
        try {
            picture.svg = rewriteSvg(drawing.svg, id, sketch.title);
        } catch (const std::runtime_error& error) {
            picture.reason = error.what();
        }
    }
    return picture;
}

std::vector<Drawing> drawAll(const std::vector<Sketch>& sketches, const std::function<void(std::size_t)>& drawn)
{
    std::vector<std::string> scripts;
    for (const Sketch& known : sketches) {
        scripts.push_back(known.script);
    }
    try {
        return drawWithGnuplot(scripts, drawn);
    } catch (const ProcessError& error) {
        return std::vector<Drawing>(scripts.size(), Drawing{"", error.what()});
    }
}

}  // namespace

PictureBook::PictureBook(const std::list<rapidjson::Document>& documents, Progress progress)
    : documents_(documents)
    , progress_(progress ? std::move(progress) : [](std::size_t, std::size_t) {})
{
}

const std::vector<std::vector<Picture>>& PictureBook::pictures()
{
    if (!pictures_) {
        pictures_.emplace();
        const std::size_t total = countGraphs(documents_);
        std::size_t drawn = 0;
        for (const rapidjson::Document& document : documents_) {
            drawn += pictures_->emplace_back(draw(document, drawn, total)).size();
        }
    }
    return *pictures_;
}

std::vector<Picture> PictureBook::draw(const rapidjson::Document& document, std::size_t drawnBefore,
                                       std::size_t total) const
{
    std::vector<Sketch> sketches;
    for (const rapidjson::Value* graph : graphsOf(document)) {
        sketches.push_back(sketch(*graph));
    }
    if (sketches.empty()) {
        return {};
    }
    const std::vector<Drawing> drawings =
        drawAll(sketches, [&](std::size_t drawn) { progress_(drawnBefore + drawn, total); });
    std::vector<Picture> pictures;
    for (std::size_t i = 0; i < sketches.size(); ++i) {
        const std::string id = "plot-" + std::to_string(drawnBefore + i + 1);
        pictures.push_back(finish(sketches[i], drawings[i], id));
    }
    return pictures;
}

}  // namespace standin
