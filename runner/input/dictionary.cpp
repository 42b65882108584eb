#include "runner/input/dictionary.h"

#include "runner/input/encoding.h"
#include "runner/input/input_error.h"
#include "text/numbers.h"
#include "text/utf8.h"
#include "text/wording.h"

#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace runner {

namespace {

using QUVO_Variable_Enumerations::MeasurementLevel;
using rapidjson::Value;

/// What the dictionary says of one variable.
struct Entry {
    std::size_t position = 0;  ///< of the variable in the data set
    std::optional<std::string> label;
    std::optional<MeasurementLevel> level;
    std::optional<std::map<double, std::string>> valueLabels;
    std::vector<double> missingCodes;
};

/// What a message is about, and where that stands.
struct Place {
    std::size_t offset;
    std::string subject;
};

struct LevelName {
    std::string_view name;
    MeasurementLevel level;
};

constexpr std::array<LevelName, 3> levelNames{
    {{"scale", standin::levels::scale}, {"nominal", standin::levels::nominal}, {"ordinal", standin::levels::ordinal}}};

std::string_view textOf(const Value& text)
{
    return {text.GetString(), text.GetStringLength()};
}

/// Hands on to a document what is parsed, with numbers as the data have them: a missing code equals the cell that
/// spells the same number. (The parser's own exact way takes a zero with a large exponent for another number.)
class NumberByNumber {
public:
    explicit NumberByNumber(rapidjson::Document& document)
        : document_(document)
    {
    }

    bool Null() { return document_.Null(); }
    bool Bool(bool value) { return document_.Bool(value); }
    bool Int(int value) { return document_.Int(value); }
    bool Uint(unsigned value) { return document_.Uint(value); }
    bool Int64(std::int64_t value) { return document_.Int64(value); }
    bool Uint64(std::uint64_t value) { return document_.Uint64(value); }
    bool Double(double value) { return document_.Double(value); }
    bool String(const char* text, rapidjson::SizeType size, bool copy) { return document_.String(text, size, copy); }
    bool StartObject() { return document_.StartObject(); }
    bool Key(const char* text, rapidjson::SizeType size, bool copy) { return document_.Key(text, size, copy); }
    bool EndObject(rapidjson::SizeType size) { return document_.EndObject(size); }
    bool StartArray() { return document_.StartArray(); }
    bool EndArray(rapidjson::SizeType size) { return document_.EndArray(size); }

    /// False when the number is too large.
    bool RawNumber(const char* text, rapidjson::SizeType size, bool /*unused*/)
    {
        const auto number = text::readNumber({text, size});
        return number && document_.Double(*number);
    }

private:
    rapidjson::Document& document_;
};

std::string reasonFor(rapidjson::ParseErrorCode error)
{
    if (error == rapidjson::kParseErrorTermination) {
        return "a number is too large";
    }
    std::string reason = rapidjson::GetParseError_En(error);
    reason.erase(reason.find_last_not_of('.') + 1);
    return reason;
}

/// Turns the text into entries, checked against the data set.
class DictionaryReader {
public:
    DictionaryReader(const standin::DataSet& dataSet, std::string_view text, const std::string& fileName)
        : dataSet_(dataSet)
        , text_(requireUtf8(text, fileName))
        , fileName_(fileName)
        , buffer_(text_)
    {
    }

    std::vector<Entry> read();

private:
    void parse();
    std::vector<Entry> readVariables(const Place& place, const Value& object) const;
    Entry readEntry(std::string_view name, std::size_t offset, const Value& object) const;
    void readMember(Entry& entry, std::string_view member, const Place& place, const Value& value) const;
    MeasurementLevel readLevel(const Place& place, const Value& value) const;
    std::map<double, std::string> readValueLabels(const Place& place, const Value& object) const;
    std::vector<double> readMissingCodes(const Place& place, const Value& list) const;
    std::string readText(const Place& place, const Value& value) const;

    /// Calls `use(name, offset, value)` for each member; the names are valid texts and differ.
    template <typename Use>
    void forEachMember(const Place& place, const Value& object, Use use) const;

    [[noreturn]] void fail(const Place& place, const std::string& reason) const;

    const standin::DataSet& dataSet_;
    std::string_view text_;
    const std::string& fileName_;
    std::string buffer_;  ///< parsed in place: the texts of `document_` lie in it, where they stand in `text_`
    rapidjson::Document document_;
};

std::vector<Entry> DictionaryReader::read()
{
    parse();
    std::vector<Entry> entries;
    forEachMember({0, "the dictionary"}, document_, [&](std::string_view name, std::size_t offset, const Value& value) {
        const Place place{offset, text::inQuotes(name)};
        if (name != "variables") {
            fail(place, R"(is no member of a dictionary; its only one is "variables")");
        }
        entries = readVariables(place, value);
    });
    return entries;
}

// Without recursion, so that no depth of nesting exhausts the stack.
void DictionaryReader::parse()
{
    constexpr unsigned flags =
        rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::InsituStringStream stream(buffer_.data());
    rapidjson::Reader reader;
    const auto parseInto = [&](rapidjson::Document& document) {
        NumberByNumber handler(document);
        return !reader.Parse<flags>(stream, handler).IsError();
    };
    document_.Populate(parseInto);
    if (reader.HasParseError()) {
        fail({reader.GetErrorOffset(), "this"}, "cannot be read as JSON: " + reasonFor(reader.GetParseErrorCode()));
    }
}

std::vector<Entry> DictionaryReader::readVariables(const Place& place, const Value& object) const
{
    std::vector<Entry> entries;
    forEachMember(place, object, [&](std::string_view name, std::size_t offset, const Value& value) {
        entries.push_back(readEntry(name, offset, value));
    });
    return entries;
}

Entry DictionaryReader::readEntry(std::string_view name, std::size_t offset, const Value& object) const
{
    const Place place{offset, "variable " + text::inQuotes(name)};
    const auto position = dataSet_.find(name);
    if (!position) {
        fail(place, "is not in the data");
    }
    Entry entry;
    entry.position = *position;
    forEachMember(place, object, [&](std::string_view member, std::size_t memberOffset, const Value& value) {
        readMember(entry, member, {memberOffset, text::inQuotes(member) + " of " + place.subject}, value);
    });
    return entry;
}

void DictionaryReader::readMember(Entry& entry, std::string_view member, const Place& place, const Value& value) const
{
    if (member == "label") {
        entry.label = readText(place, value);
    } else if (member == "level") {
        entry.level = readLevel(place, value);
    } else if (member == "valueLabels") {
        entry.valueLabels = readValueLabels(place, value);
    } else if (member == "missing") {
        entry.missingCodes = readMissingCodes(place, value);
    } else {
        fail(place, R"(is unknown; a variable may have "label", "level", "valueLabels" and "missing")");
    }
}

MeasurementLevel DictionaryReader::readLevel(const Place& place, const Value& value) const
{
    const std::string name = readText(place, value);
    const auto* const found = std::ranges::find(levelNames, name, &LevelName::name);
    if (found == levelNames.end()) {
        fail(place, R"(must be "scale", "nominal" or "ordinal", not )" + text::inQuotes(name));
    }
    return found->level;
}

std::map<double, std::string> DictionaryReader::readValueLabels(const Place& place, const Value& object) const
{
    std::map<double, std::string> labels;
    forEachMember(place, object, [&](std::string_view name, std::size_t offset, const Value& value) {
        const Place label{offset, text::inQuotes(name) + " in " + place.subject};
        const auto number = text::readNumber(name);
        if (!number) {
            fail(label, R"(is no number; a label is given as "NUMBER": "TEXT")");
        }
        if (!labels.emplace(*number, readText(label, value)).second) {
            fail(label, "labels a number that has a label already");
        }
    });
    return labels;
}

std::vector<double> DictionaryReader::readMissingCodes(const Place& place, const Value& list) const
{
    const auto isNumber = [](const Value& code) { return code.IsNumber(); };
    if (!list.IsArray() || !std::all_of(list.Begin(), list.End(), isNumber)) {
        fail(place, "must be a list of numbers, as in [-9, 99]");
    }
    std::vector<double> codes;
    for (const Value& code : list.GetArray()) {
        codes.push_back(code.GetDouble());
    }
    return codes;
}

// JSON can escape what no text may hold, a zero character or half a surrogate pair.
std::string DictionaryReader::readText(const Place& place, const Value& value) const
{
    if (!value.IsString()) {
        fail(place, "must be a text in quotes");
    }
    if (text::firstBadUtf8Byte(textOf(value))) {
        fail(place, "holds an escaped zero or half a surrogate pair");
    }
    return std::string(textOf(value));
}

template <typename Use>
void DictionaryReader::forEachMember(const Place& place, const Value& object, Use use) const
{
    if (!object.IsObject()) {
        fail(place, "must be an object, in braces");
    }
    std::set<std::string, std::less<>> names;
    for (const auto& member : object.GetObject()) {
        const auto offset = static_cast<std::size_t>(member.name.GetString() - buffer_.data());
        const auto [name, isNew] = names.insert(readText({offset, "a name in " + place.subject}, member.name));
        if (!isNew) {
            fail({offset, text::inQuotes(*name)}, "stands twice in " + place.subject);
        }
        use(*name, offset, member.value);
    }
}

void DictionaryReader::fail(const Place& place, const std::string& reason) const
{
    const std::size_t line = text::countLineEnds(text_.substr(0, place.offset)) + 1;
    throw InputError(fileName_, line, place.subject + " " + reason);
}

void replaceMissingCodes(std::vector<double>& values, const std::vector<double>& codes)
{
    for (const double code : codes) {
        std::ranges::replace(values, code, systemMissingValue);
    }
}

void apply(standin::Variable& variable, Entry& entry)
{
    if (entry.label) {
        variable.label = std::move(*entry.label);
    }
    variable.level = entry.level.value_or(variable.level);
    if (variable.firstText) {
        return;
    }
    if (entry.valueLabels) {
        variable.valueLabels = std::move(*entry.valueLabels);
    }
    replaceMissingCodes(variable.values, entry.missingCodes);
}

}  // namespace

void applyDictionary(standin::DataSet& dataSet, std::string_view text, const std::string& fileName)
{
    for (Entry& entry : DictionaryReader(dataSet, text, fileName).read()) {
        apply(dataSet.variables[entry.position], entry);
    }
}

}  // namespace runner
