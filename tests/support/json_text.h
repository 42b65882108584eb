// JSON values as texts to compare.
#pragma once

#include <rapidjson/document.h>

#include <string>

namespace tests {

/// Compact, with what is no number as the stand-in writes it.
std::string json(const rapidjson::Value& value);

}  // namespace tests
