#include "standin/document/json_parts.h"

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

void copyWhole(const rapidjson::Value& from, rapidjson::Value& to, rapidjson::Document::AllocatorType& allocator)
{
    if (from.IsObject()) {
        std::vector<std::string_view> names;
        for (const auto& member : from.GetObject()) {
            names.emplace_back(member.name.GetString(), member.name.GetStringLength());
        }
        to = jsonObject(names, allocator);
        auto copied = to.MemberBegin();
        for (const auto& member : from.GetObject()) {
            copyWhole(member.value, (copied++)->value, allocator);
        }
    } else if (from.IsArray()) {
        to.SetArray();
        to.Reserve(from.Size(), allocator);
        for (const auto& element : from.GetArray()) {
            rapidjson::Value value;
            copyWhole(element, value, allocator);
            to.PushBack(value, allocator);
        }
    } else if (from.IsString()) {
        to.SetString(from.GetString(), from.GetStringLength(), allocator);
    } else {
        to.CopyFrom(from, allocator);
    }
}

}  // namespace standin
