#include "tests/support/json_text.h"

#include "text/json_writer.h"

#include <rapidjson/stringbuffer.h>

namespace tests {

std::string json(const rapidjson::Value& value)
{
    rapidjson::StringBuffer buffer;
    text::JsonWriter<rapidjson::StringBuffer> writer(buffer);
    value.Accept(writer);
    return buffer.GetString();
}

}  // namespace tests
