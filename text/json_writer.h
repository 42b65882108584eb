// Writes JSON with numbers that read back to the same double, and what no JSON number can say as the texts "NaN",
// "Infinity" and "-Infinity".
#pragma once

#include <rapidjson/prettywriter.h>
#include <rapidjson/writer.h>

#include <cmath>

namespace text {

/// @tparam Base  one of RapidJSON's writers
template <class Base>
class NumberSafeWriter : public Base {
public:
    using Base::Base;

    bool Double(double number)
    {
        if (std::isnan(number)) {
            return Base::String("NaN");
        }
        if (std::isinf(number)) {
            return Base::String(number > 0 ? "Infinity" : "-Infinity");
        }
        return Base::Double(number);
    }
};

template <class Stream>
using JsonWriter = NumberSafeWriter<rapidjson::Writer<Stream>>;

template <class Stream>
using PrettyJsonWriter = NumberSafeWriter<rapidjson::PrettyWriter<Stream>>;

}  // namespace text
