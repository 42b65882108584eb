#include "standin/json_object.h"

namespace standin {

rapidjson::Value jsonObject(std::span<const std::string_view> names, rapidjson::Document::AllocatorType& allocator)
{
    // What a document is told in one go is stored in one piece.
    const auto tell = [names](rapidjson::Document& members) {
        members.StartObject();
        for (const std::string_view name : names) {
            members.Key(name.data(), static_cast<rapidjson::SizeType>(name.size()), true);
            members.Null();
        }
        return members.EndObject(static_cast<rapidjson::SizeType>(names.size()));
    };
    rapidjson::Document object(&allocator);
    object.Populate(tell);
    rapidjson::Value result;
    result.Swap(object);
    return result;
}

}  // namespace standin
