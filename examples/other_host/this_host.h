// What this host has ready for a command, how it is to behave, and what it keeps of what the module did. None of it is
// agreed with the module: a real host has its own in its place.
#pragma once

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace other {

struct Variable {
    std::string name;
    short level = 3;
};

/// What a call can be set to do in place of its work: return false or null, or throw.
enum class Oddity { ComesToNothing, Raises };

struct Host {
    std::vector<Variable> variables;
    std::vector<std::vector<double>> cases;  ///< a row need not be as long as the list of variables
    std::vector<std::string> command;        ///< its tokens
    std::string languageCode = "en";
    std::string languageFolder = "C:\\host\\texts\\en\\";
    std::map<std::string, Oddity> oddities;   ///< by what a call begins with: its line, its number, a blank
    std::vector<std::string> trace;           ///< a line a call: operation, tab, arguments as a JSON array
    std::vector<std::string> receivers;       ///< of calls on objects: the name, where it has one, and the operation
    std::vector<std::string> complaints;      ///< what the user is to be told
    std::vector<std::string> releasedTables;  ///< the internal names of the tables that are gone
    std::vector<std::string> documents;       ///< what was delivered, as JSON
};

inline Host theHost;

/// Writes flags, numbers and texts as themselves, null as null, a list as its length; what no JSON number can say as a
/// text.
class Writer : public rapidjson::Writer<rapidjson::StringBuffer> {
public:
    using rapidjson::Writer<rapidjson::StringBuffer>::Writer;

    bool Double(double number)
    {
        const char* word = std::isnan(number) ? "NaN" : number > 0 ? "Infinity" : "-Infinity";
        return std::isfinite(number) ? rapidjson::Writer<rapidjson::StringBuffer>::Double(number) : String(word);
    }

    void add(bool flag) { Bool(flag); }
    void add(int number) { Int(number); }
    void add(double number) { Double(number); }
    void add(std::nullptr_t) { Null(); }
    void add(const std::string& text) { String(text); }
    template <class Element>
    void add(const std::vector<Element>& list)
    {
        Uint64(list.size());
    }
};

/// Traces a call of the module. False when it is set to come to nothing.
bool call(const std::string& operation, const auto&... arguments)
{
    rapidjson::StringBuffer text;
    Writer writer(text);
    writer.StartArray();
    (writer.add(arguments), ...);
    writer.EndArray();
    const std::string line = theHost.trace.emplace_back(operation + '\t' + text.GetString());
    for (const auto& [beginning, oddity] : theHost.oddities) {
        const std::string counted = line + ' ' + std::to_string(std::ranges::count(theHost.trace, line)) + ' ';
        if (counted.starts_with(beginning)) {
            return oddity == Oddity::Raises ? throw std::runtime_error(operation) : false;
        }
    }
    return true;
}

/// The element of that name, or null.
auto* find(auto& list, const std::string& name)
{
    const auto found = std::ranges::find(list, name, [](const auto& element) { return element.name; });
    return found != list.end() ? &*found : nullptr;
}

/// The same as an operation that the module calls.
auto* lookUp(const std::string& operation, auto& list, const std::string& name, const auto&... more)
{
    return call(operation, name, more...) ? find(list, name) : nullptr;
}

inline std::string upperCase(std::string text)
{
    const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
    std::ranges::transform(text, text.begin(), upper);
    return text;
}

/// What the module makes, and what it derives from: traces its beginning and its end. A copy is the host's own.
class Object {
public:
    Object() = default;
    Object(const Object& original) { name.assign(original.name); }
    virtual ~Object()
    {
        if (!type_.empty()) {
            theHost.trace.push_back(type_ + "::~" + type_ + "\t[]");
        }
    }

    /// For the constructor, with what it was given.
    void begin(const std::string& type, const auto&... arguments)
    {
        other::call(type + "::" + type, arguments...);
        type_ = type;
    }

    bool call(const std::string& operation, const auto&... arguments) const
    {
        theHost.receivers.push_back(name + ' ' + operation);
        return other::call(operation, arguments...);
    }

    std::string name;

private:
    std::string type_;
};

}  // namespace other

using other::call, other::lookUp, other::theHost;
