// Arrays of the output document.
#pragma once

#include <rapidjson/document.h>

#include <string>
#include <type_traits>
#include <vector>

namespace standin {

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

}  // namespace standin
