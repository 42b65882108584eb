// The arguments of a host call as a JSON array: numbers, flags, texts and enumerations as themselves, a null pointer as
// null, a vector as its length; any other object is left out.
#pragma once

#include "text/json_writer.h"

#include <rapidjson/stringbuffer.h>

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace standin {

using TraceWriter = text::JsonWriter<rapidjson::StringBuffer>;

template <class Argument>
void traceArgument(TraceWriter& writer, const Argument& argument)
{
    if constexpr (std::is_same_v<Argument, bool>) {
        writer.Bool(argument);
    } else if constexpr (std::is_enum_v<Argument>) {
        writer.Int(static_cast<int>(argument));
    } else if constexpr (std::is_integral_v<Argument>) {
        writer.Int64(static_cast<std::int64_t>(argument));
    } else if constexpr (std::is_floating_point_v<Argument>) {
        writer.Double(argument);
    }
}

inline void traceArgument(TraceWriter& writer, const std::string& text)
{
    writer.String(text);
}

inline void traceArgument(TraceWriter& writer, const char* text)
{
    if (text == nullptr) {
        writer.Null();
    } else {
        writer.String(text);
    }
}

template <class Object>
void traceArgument(TraceWriter& writer, Object* object)
{
    if (object == nullptr) {
        writer.Null();
    }
}

template <class Element>
void traceArgument(TraceWriter& writer, const std::vector<Element>& elements)
{
    writer.Uint64(elements.size());
}

template <class... Arguments>
std::string traceArguments(const Arguments&... arguments)
{
    rapidjson::StringBuffer buffer;
    TraceWriter writer(buffer);
    writer.StartArray();
    (traceArgument(writer, arguments), ...);
    writer.EndArray();
    return {buffer.GetString(), buffer.GetSize()};
}

}  // namespace standin
