#include "standin/session/session.h"

#include "standin/document/json_parts.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace standin {

namespace {

Session* runningSession = nullptr;

}  // namespace

Session::Session()
    : previous_(std::exchange(runningSession, this))
{
    setLanguage("en");
}

Session::~Session()
{
    runningSession = previous_;
}

Session* Session::running() noexcept
{
    return runningSession;
}

Session& Session::current()
{
    if (runningSession == nullptr) {
        throw std::logic_error("no host session is running");
    }
    return *runningSession;
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
