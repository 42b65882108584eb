// The documents of a run as JSON.
#pragma once

#include <rapidjson/document.h>

#include <list>
#include <string>

namespace report {

/// {"documents": [...]}, in the order of delivery. Numbers read back to the same double; not-a-number and the
/// infinities are the texts "NaN", "Infinity" and "-Infinity".
std::string renderJson(const std::list<rapidjson::Document>& documents);

}  // namespace report
