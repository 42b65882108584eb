// Objects of the output document with no more room than they need.
#pragma once

#include <rapidjson/document.h>

#include <span>
#include <string_view>

namespace standin {

/// An object of members with these names, copied, in this order; every value is null until it is set. Members that are
/// added one by one get room for sixteen, which over many small objects is most of a document's memory.
rapidjson::Value jsonObject(std::span<const std::string_view> names, rapidjson::Document::AllocatorType& allocator);

}  // namespace standin
