#include "report/formats/render_json.h"

#include "text/json_writer.h"

#include <rapidjson/stringbuffer.h>

namespace report {

std::string renderJson(const std::list<rapidjson::Document>& documents)
{
    rapidjson::StringBuffer buffer;
    text::PrettyJsonWriter<rapidjson::StringBuffer> writer(buffer);
    writer.SetIndent(' ', 1);
    writer.SetFormatOptions(rapidjson::kFormatSingleLineArray);
    writer.StartObject();
    writer.Key("documents");
    writer.StartArray();
    for (const rapidjson::Document& document : documents) {
        document.Accept(writer);
    }
    writer.EndArray();
    writer.EndObject();
    buffer.Put('\n');
    return {buffer.GetString(), buffer.GetSize()};
}

}  // namespace report
