#include "runner/input/dictionary.h"

#include "runner/input/placed_json.h"
#include "text/numbers.h"
#include "text/wording.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace runner {

namespace {

using QUVO_Variable_Enumerations::MeasurementLevel;
using standin::DataSet;
using standin::Variable;
using text::inQuotes;
using Value = PlacedJson::Value;

/// What the dictionary says of one variable.
struct Entry {
    std::size_t position = 0;  ///< of the variable in the data set
    std::optional<std::string> label;
    std::optional<MeasurementLevel> level;
    std::optional<std::map<double, std::string>> valueLabels;
    std::vector<double> missingCodes;
};

struct LevelName {
    std::string_view name;
    MeasurementLevel level;
};

constexpr std::array<LevelName, 3> levelNames{
    {{"scale", standin::levels::scale}, {"nominal", standin::levels::nominal}, {"ordinal", standin::levels::ordinal}}};

/// Turns the text into entries, checked against the data set.
class DictionaryReader {
public:
    DictionaryReader(const DataSet& dataSet, std::string_view text, const std::string& fileName)
        : dataSet_(dataSet)
        , json_(text, fileName)
    {
    }

    std::vector<Entry> read() const;

private:
    std::vector<Entry> readVariables(const Place& place, const Value& object) const;
    Entry readEntry(const Member& variable) const;
    void readMember(Entry& entry, const Member& member, const Place& place) const;
    MeasurementLevel readLevel(const Place& place, const Value& value) const;
    std::map<double, std::string> readValueLabels(const Place& place, const Value& object) const;
    std::vector<double> readMissingCodes(const Place& place, const Value& list) const;

    const DataSet& dataSet_;
    PlacedJson json_;
};

std::vector<Entry> DictionaryReader::read() const
{
    std::vector<Entry> entries;
    json_.forEachMember({0, "the dictionary"}, json_.root(), [&](const Member& member) {
        const Place place{member.offset, inQuotes(member.name)};
        if (member.name != "variables") {
            json_.fail(place, R"(is no member of a dictionary; its only one is "variables")");
        }
        entries = readVariables(place, member.value);
    });
    return entries;
}

std::vector<Entry> DictionaryReader::readVariables(const Place& place, const Value& object) const
{
    std::vector<Entry> entries;
    json_.forEachMember(place, object, [&](const Member& variable) { entries.push_back(readEntry(variable)); });
    return entries;
}

Entry DictionaryReader::readEntry(const Member& variable) const
{
    const Place place{variable.offset, "variable " + inQuotes(variable.name)};
    const auto position = dataSet_.find(variable.name);
    if (!position) {
        json_.fail(place, "is not in the data");
    }
    Entry entry;
    entry.position = *position;
    json_.forEachMember(place, variable.value, [&](const Member& member) {
        readMember(entry, member, {member.offset, inQuotes(member.name) + " of " + place.subject});
    });
    return entry;
}

void DictionaryReader::readMember(Entry& entry, const Member& member, const Place& place) const
{
    if (member.name == "label") {
        entry.label = json_.readText(place, member.value);
    } else if (member.name == "level") {
        entry.level = readLevel(place, member.value);
    } else if (member.name == "valueLabels") {
        entry.valueLabels = readValueLabels(place, member.value);
    } else if (member.name == "missing") {
        entry.missingCodes = readMissingCodes(place, member.value);
    } else {
        json_.fail(place, R"(is unknown; a variable may have "label", "level", "valueLabels" and "missing")");
    }
}

MeasurementLevel DictionaryReader::readLevel(const Place& place, const Value& value) const
{
    const std::string name = json_.readText(place, value);
    const auto* const found = std::ranges::find(levelNames, name, &LevelName::name);
    if (found == levelNames.end()) {
        json_.fail(place, R"(must be "scale", "nominal" or "ordinal", not )" + inQuotes(name));
    }
    return found->level;
}

std::map<double, std::string> DictionaryReader::readValueLabels(const Place& place, const Value& object) const
{
    std::map<double, std::string> labels;
    json_.forEachMember(place, object, [&](const Member& member) {
        const Place label{member.offset, inQuotes(member.name) + " in " + place.subject};
        const auto number = text::readNumber(member.name);
        if (!number) {
            json_.fail(label, R"(is no number; a label is given as "NUMBER": "TEXT")");
        }
        if (!labels.emplace(*number, json_.readText(label, member.value)).second) {
            json_.fail(label, "labels a number that has a label already");
        }
    });
    return labels;
}

std::vector<double> DictionaryReader::readMissingCodes(const Place& place, const Value& list) const
{
    const auto isNumber = [](const Value& code) { return code.IsNumber(); };
    if (!list.IsArray() || !std::all_of(list.Begin(), list.End(), isNumber)) {
        json_.fail(place, "must be a list of numbers, as in [-9, 99]");
    }
    std::vector<double> codes;
    for (const Value& code : list.GetArray()) {
        codes.push_back(code.GetDouble());
    }
    return codes;
}

void replaceMissingCodes(std::vector<double>& values, const std::vector<double>& codes)
{
    for (const double code : codes) {
        std::ranges::replace(values, code, systemMissingValue);
    }
}

void apply(Variable& variable, Entry& entry)
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

void applyDictionary(DataSet& dataSet, std::string_view text, const std::string& fileName)
{
    for (Entry& entry : DictionaryReader(dataSet, text, fileName).read()) {
        apply(dataSet.variables[entry.position], entry);
    }
}

}  // namespace runner
