#include "standin/session.h"

#include "standin/json_object.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace standin {

namespace {

Session* currentSession = nullptr;

/// Copies a value with all its texts. RapidJSON's own copy goes on referring to constant texts of whoever made them,
/// here the module, which may be unloaded.
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

}  // namespace

Session::Session()
    : previous_(std::exchange(currentSession, this))
{
    setLanguage("en");
}

Session::~Session()
{
    currentSession = previous_;
}

Session& Session::current()
{
    if (currentSession == nullptr) {
        throw std::logic_error("no host session is running");
    }
    return *currentSession;
}

void Session::setLanguage(const std::string& code)
{
    languageCode = code;
    // A folder's name holds neither '-' nor the separator of paths.
    std::string folderName = code;
    std::ranges::replace_if(
        folderName, [](char c) { return c == '-' || c == '\\'; }, '_');
    languageFolder = "languages\\" + folderName;
}

void Session::complain(const std::string& text)
{
    complaints.push_back(text);
    if (onComplaint) {
        onComplaint(text);
    }
}

void Session::deliver(const rapidjson::Document& document)
{
    rapidjson::Document& copy = documents.emplace_back();
    copyWhole(document, copy, copy.GetAllocator());
    delivered_ = true;
}

bool Session::run(void (*entryPoint)())
{
    delivered_ = false;
    entryPoint();
    monitor.endCommand();
    return delivered_;
}

}  // namespace standin
