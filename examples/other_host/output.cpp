// A document in memory: a title, and the tables and charts in order.
#include "host/output.h"

using rapidjson::Value;

namespace {

using Allocator = rapidjson::Document::AllocatorType;

Value json(const std::unique_ptr<Cell>& cell, Allocator&)
{
    return cell->getJson();
}

Value json(const auto& plain, Allocator& allocator)
{
    return std::move(Value().Set(plain, allocator));
}

template <class Element>
Value json(const std::vector<Element>& list, Allocator& allocator)
{
    Value array(rapidjson::kArrayType);
    for (const Element& element : list) {
        array.PushBack(json(element, allocator), allocator);
    }
    return array;
}

}  // namespace

bool StatJSONConverter::generateOutput(const rapidjson::Document& document)
{
    const bool accepted = call("StatJSONConverter::generateOutput");
    if (accepted) {
        rapidjson::StringBuffer text;
        other::Writer writer(text);
        document.Accept(writer);
        theHost.documents.emplace_back(text.GetString());
    }
    return accepted;
}

Value Descendants::getJson()
{
    Value group(rapidjson::kObjectType);
    group.AddMember("label", value, document->allocator);
    group.AddMember("children", json(children, document->allocator), document->allocator);
    return group;
}

void Table::addTableToProcedureJSON()
{
    call("Table::addTableToProcedureJSON");
    auto& allocator = document->allocator;
    Value table(rapidjson::kObjectType);
    table.AddMember("name", *keptName, allocator).AddMember("title", title, allocator);
    table.AddMember("footnotes", json(footnotes, allocator), allocator);
    table.AddMember("rows", dimension->rows->getJson(), allocator);
    table.AddMember("columns", dimension->columns->getJson(), allocator);
    table.AddMember("cells", json(body->rows, allocator), allocator);
    document->document["objects"].PushBack(table, allocator);
}

void StatGPLGraph::addGPLGraphToProcedureJSON()
{
    call("StatGPLGraph::addGPLGraphToProcedureJSON");
    auto& allocator = document->allocator;
    Value data(rapidjson::kObjectType);
    for (const auto& [column, values] : columns) {
        const auto jsonOf = [&allocator](const auto* list) { return json(*list, allocator); };
        data.AddMember(Value(column, allocator), std::visit(jsonOf, values), allocator);
    }
    Value graph(rapidjson::kObjectType);
    graph.AddMember("name", name, allocator).AddMember("data", data, allocator);
    writeGPL(graph, allocator);
    document->document["objects"].PushBack(graph, allocator);
}
