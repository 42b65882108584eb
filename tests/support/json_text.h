// JSON values as texts to compare.
#pragma once

#include "text/json_writer.h"

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>

#include <string>

namespace tests {

/// Compact, with what is no number as the stand-in writes it.
inline std::string json(const rapidjson::Value& value)
{
    rapidjson::StringBuffer buffer;
    text::JsonWriter<rapidjson::StringBuffer> writer(buffer);
    value.Accept(writer);
    return buffer.GetString();
}

}  // namespace tests
