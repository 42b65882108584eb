// The base of charts: their columns, and their form in the document.
#include "standin/border/host_call.h"
#include "standin/document/json_parts.h"
#include "standin/objects/output/output_data.h"

#include <utility>

using standin::HostCall;

struct StatGPLGraph::Data {
    using Column = std::variant<std::vector<double>, std::vector<std::string>>;

    StatJSONGenerator* generator = nullptr;
    std::string name;
    std::vector<double> x;
    std::vector<double> y;
    std::vector<std::pair<std::string, Column>> columns;  ///< in the order in which they were added
    bool added = false;
};

namespace {

using Allocator = rapidjson::Document::AllocatorType;

rapidjson::Value columnsOf(const StatGPLGraph::Data& graph, Allocator& allocator)
{
    rapidjson::Value columns(rapidjson::kObjectType);
    columns.AddMember("xdata", standin::jsonArray(graph.x, allocator), allocator);
    columns.AddMember("ydata", standin::jsonArray(graph.y, allocator), allocator);
    for (const auto& [name, column] : graph.columns) {
        rapidjson::Value values =
            std::visit([&allocator](const auto& content) { return standin::jsonArray(content, allocator); }, column);
        columns.AddMember(rapidjson::Value(name, allocator), values, allocator);
    }
    return columns;
}

}  // namespace

StatGPLGraph::StatGPLGraph(StatJSONGenerator* generator, const std::string& name)
{
    HostCall call(HostCall::Constructor{}, "StatGPLGraph::StatGPLGraph", generator, name);
    call.requireAlive(generator, "the document");
    data = std::make_unique<Data>();
    data->generator = generator;
    data->name = name;
    call.creates(this);
}

StatGPLGraph::~StatGPLGraph()
{
    HostCall call(HostCall::Destructor{}, this, "StatGPLGraph::~StatGPLGraph");
    data.reset();
}

std::string StatGPLGraph::getName() const
{
    HostCall call(this, "StatGPLGraph::getName");
    return data->name;
}

void StatGPLGraph::setDataVector(const std::vector<double>& values, bool isX)
{
    HostCall call(this, "StatGPLGraph::setDataVector", values, isX);
    call.require(!data->added, "a column came after the chart was added");
    (isX ? data->x : data->y) = values;
}

void StatGPLGraph::addToDataVector(std::vector<double>& values, const std::string& column)
{
    HostCall call(this, "StatGPLGraph::addToDataVector", values, column);
    call.require(!data->added, "a column came after the chart was added");
    data->columns.emplace_back(column, values);
}

void StatGPLGraph::addToDataVector(std::vector<std::string>& values, const std::string& column)
{
    HostCall call(this, "StatGPLGraph::addToDataVector", values, column);
    call.require(!data->added, "a column came after the chart was added");
    data->columns.emplace_back(column, values);
}

void StatGPLGraph::addGPLGraphToProcedureJSON()
{
    HostCall call(this, "StatGPLGraph::addGPLGraphToProcedureJSON");
    call.require(!data->added, "the chart was added before");
    call.requireAlive(data->generator, "the document");
    StatJSONGenerator::Data& document = *data->generator->data;
    Allocator& allocator = document.document.GetAllocator();
    rapidjson::Value graph(rapidjson::kObjectType);
    graph.AddMember("type", "graph", allocator);
    graph.AddMember("name", rapidjson::Value(data->name, allocator), allocator);
    graph.AddMember("data", columnsOf(*data, allocator), allocator);
    {
        const standin::Crossing intoTheModule(standin::Side::Module);
        writeGPL(graph, allocator);
    }
    call.require(graph.HasMember("gpl") && graph["gpl"].IsArray(), "the chart wrote no statements");
    document.append(graph);
    data->added = true;
}
