#include "report/document/document_view.h"

#include "text/wording.h"

namespace report {

bool isGraph(const rapidjson::Value& object)
{
    return object["type"] == "graph";
}

std::vector<const rapidjson::Value*> graphsOf(const std::list<rapidjson::Document>& documents)
{
    std::vector<const rapidjson::Value*> graphs;
    for (const rapidjson::Document& document : documents) {
        for (const rapidjson::Value& object : document["objects"].GetArray()) {
            if (isGraph(object)) {
                graphs.push_back(&object);
            }
        }
    }
    return graphs;
}

std::string titleOf(const rapidjson::Value& object)
{
    return shownText(object[isGraph(object) ? "name" : "title"]);
}

std::string textOf(const rapidjson::Value& text)
{
    return {text.GetString(), text.GetStringLength()};
}

std::string shownText(const rapidjson::Value& text)
{
    return text::printable(textOf(text));
}

}  // namespace report
