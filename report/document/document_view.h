// What is asked of the objects of a document wherever one is shown.
#pragma once

#include <rapidjson/document.h>

#include <list>
#include <string>
#include <vector>

namespace report {

/// True for a graph, false for a table.
bool isGraph(const rapidjson::Value& object);

/// The graphs of some documents, in order.
std::vector<const rapidjson::Value*> graphsOf(const std::list<rapidjson::Document>& documents);

/// What a reader knows the object by: a table's title, a graph's name; printable.
std::string titleOf(const rapidjson::Value& object);

/// A text of a document to the byte.
std::string textOf(const rapidjson::Value& text);

/// A text of a document as it can be shown, `printable`.
std::string shownText(const rapidjson::Value& text);

}  // namespace report
