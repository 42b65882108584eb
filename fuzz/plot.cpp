// The statements of a graph, one to a line, through the drawing up to what gnuplot is told.
#include "fuzz/target.h"
#include "report/drawing/gnuplot_script.h"
#include "report/plots/plot_error.h"
#include "report/plots/plot_reader.h"

#include <rapidjson/document.h>

#include <algorithm>

namespace {

using Allocator = rapidjson::Document::AllocatorType;

rapidjson::Value columns(Allocator& allocator)
{
    rapidjson::Document columns(&allocator);
    columns.Parse(R"({"xdata": [1, 2.5, 2.5, "NaN"], "ydata": [3, -1e300, 4, 1], "xMinMax": [0, 4], "y0": [0, 0],
                      "y1": ["Infinity", 2], "y2": [1], "cref": ["line", "line"], "cmean": ["", "b\"q"]})");
    return {columns, allocator};
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    rapidjson::Document graph(rapidjson::kObjectType);
    Allocator& allocator = graph.GetAllocator();
    rapidjson::Value statements(rapidjson::kArrayType);
    const std::string text = fuzz::asText(data, size);
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        statements.PushBack(rapidjson::Value(text.substr(begin, end - begin), allocator), allocator);
        begin = end + 1;
    }
    graph.AddMember("type", "graph", allocator);
    graph.AddMember("name", "graph", allocator);
    graph.AddMember("data", columns(allocator), allocator);
    graph.AddMember("gpl", statements, allocator);
    try {
        report::gnuplotScript(report::readPlot(graph));
    } catch (const report::PlotError&) {  // the reason that stands in the plot's place
    }
    return 0;
}
