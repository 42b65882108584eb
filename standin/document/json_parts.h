// Parts of the output document, with no more room than they need.
#pragma once

#include <rapidjson/document.h>

#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace standin {

/// An object of members with these names, copied, in this order; every value is null until it is set. Members that are
/// added one by one get room for sixteen, which over many small objects is most of a document's memory.
rapidjson::Value jsonObject(std::span<const std::string_view> names, rapidjson::Document::AllocatorType& allocator);

/// The numbers or texts as a JSON array; texts are copied.
template <class Element>
rapidjson::Value jsonArray(const std::vector<Element>& elements, rapidjson::Document::AllocatorType& allocator)
{
    rapidjson::Value array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(elements.size()), allocator);
    for (const Element& element : elements) {
        if constexpr (std::is_same_v<Element, std::string>) {
            array.PushBack(rapidjson::Value(element, allocator), allocator);
        } else {
            array.PushBack(element, allocator);
        }
    }
    return array;
}

/// Copies a value with all its texts. RapidJSON's own copy goes on referring to constant texts of whoever made them,
/// here the module, which may be unloaded.
void copyWhole(const rapidjson::Value& from, rapidjson::Value& to, rapidjson::Document::AllocatorType& allocator);

}  // namespace standin
