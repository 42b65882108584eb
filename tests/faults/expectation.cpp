#include "tests/faults/expectation.h"

#include "tests/faults/event_log.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tests {

namespace {

using Lengths = std::vector<std::size_t>;

const char* const stepOne = "bldatman_entry: Step1 Unknown error occurred.";
const char* const stepThree = "bldatman_entry: Step3 Unknown error occurred.";
const char* const stepFive = "bldatman_entry: Step5 Unknown error occurred.";

std::vector<Place> placesOf(const Lines& events)
{
    std::vector<Place> places;
    Place place = Place::Entry;
    bool listsToCome = false;
    for (const std::string& event : events) {
        const auto is = [&event](const char* start) { return event.starts_with(start); };
        if (is("SubComDescriptor::SubComDescriptor")) {
            place = Place::Describing;
        } else if (is("CommandSpec::CommandSpec") || is("bldatman_entry: ") || is("BLDATMAN: ") || is("Warning: ")) {
            place = Place::Entry;
        } else if (is("CommandSpec::getSubComObj")) {
            place = Place::Settings;
            listsToCome = is("CommandSpec::getSubComObj\t[\"\"]");
        } else if (is("ACAVarValidSpecs::ACAVarValidSpecs")) {
            place = listsToCome ? Place::Reading : Place::Entry;  // the output makes one too
        }
        places.push_back(place);
        if (place == Place::Reading && is("ACAVarValidSpecs::~")) {
            place = Place::Settings;
        }
    }
    return places;
}

Lines joined(Lines one, const Lines& other)
{
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

Ending refused(std::string line)
{
    return {{std::move(line)}, false};
}

/// Of so many cases of a pair.
long usableCases(char a, char b, std::size_t length)
{
    const bool withoutOne = (a == 'c' || b == 'c') && length > caseWithoutC;
    return static_cast<long>(length) - (withoutOne ? 1 : 0);
}

}  // namespace

Expectation::Expectation(const Command& command, const Run& whole)
    : command_(command)
    , whole_(whole)
    , places_(placesOf(whole.events))
{
}

Place Expectation::placeOf(std::size_t event) const
{
    return places_[std::min(event, places_.size() - 1)];
}

const std::string& Expectation::names(int list) const
{
    return list == 1 || command_.second.empty() ? command_.first : command_.second;
}

std::vector<Ending> Expectation::endings(Place place, std::size_t events, const std::string& error,
                                         bool midRecord) const
{
    const Lines before = linesIn(0, events);
    switch (place) {
    case Place::Entry:
        return {{joined(before, {"BLDATMAN: " + error}), false}};
    case Place::Describing:
        return {{joined(before, {"BldatmanCommandDescriber: " + error, stepOne}), false}};
    case Place::Settings:
        return {{joined(before, {"BldatmanInputSetting::start: " + error, stepThree}), false}};
    case Place::Reading:
        break;
    }
    std::vector<Ending> endings;
    for (const Lengths& broken : brokenLists(events, midRecord)) {
        Ending rest = afterBrokenReading(events, broken);
        endings.push_back({joined(joined(before, {error}), rest.lines), rest.delivered});
    }
    return endings;
}

Ending Expectation::afterReading(const Lengths& first, const Lengths& second) const
{
    if (command_.isListwise() && !first.empty() && (second.size() < first.size() || first[0] != second[0])) {
        return refused("BLDATMAN: Standard exception: Inner vectors must have the same size");
    }
    Ending ending;
    std::size_t pairs = 0;
    for (std::size_t i = 0; i < first.size(); ++i) {
        for (std::size_t j = 0; j < second.size(); ++j) {
            if (names(1)[i] == names(2)[j] || (command_.isPaired() && i != j)) {
                continue;
            }
            ++pairs;
            const long cases = usableCases(names(1)[i], names(2)[j], std::min(first[i], second[j]));
            if (cases <= 1) {
                return refused("BLDATMAN: Standard exception: Error in function "
                               "boost::math::students_t_distribution<double>::students_t_distribution: Degrees of "
                               "freedom argument is " +
                               std::to_string(cases - 1) + ", but must be > 0 !");
            }
        }
    }
    if (command_.isPaired() && first.size() != second.size()) {
        ending.lines.emplace_back("Warning: Data sets have different sizes. Processed up to the smallest size.");
    }
    if (pairs == 0) {
        ending.lines.emplace_back(stepFive);
    }
    ending.delivered = pairs > 0;
    return ending;
}

Lines Expectation::linesIn(std::size_t from, std::size_t to) const
{
    Lines lines;
    std::copy_if(whole_.events.begin() + static_cast<std::ptrdiff_t>(from),
                 whole_.events.begin() + static_cast<std::ptrdiff_t>(to), std::back_inserter(lines),
                 [](const auto& event) { return !isCall(event); });
    return lines;
}

std::size_t Expectation::countBefore(std::size_t events, const char* call) const
{
    return static_cast<std::size_t>(std::count_if(whole_.events.begin(),
                                                  whole_.events.begin() + static_cast<std::ptrdiff_t>(events),
                                                  [call](const auto& event) { return event.starts_with(call); }));
}

// While a list's first object is being made, it is the next one.
int Expectation::listAt(std::size_t events) const
{
    const auto begun = countBefore(events, "ACAVarValidSpecs::ACA");
    return static_cast<int>(begun == countBefore(events, "ACAVarValidSpecs::~ACA") ? begun + 1 : begun);
}

std::vector<std::vector<std::size_t>> Expectation::brokenLists(std::size_t events, bool midRecord) const
{
    const std::size_t columns = names(listAt(events)).size();
    const std::size_t earlier = caseCount * static_cast<std::size_t>(listAt(events) - 1);
    const std::size_t read = countBefore(events, "RecKit::Record::GetAll") - earlier;
    std::vector<Lengths> broken{read == 0 ? Lengths() : Lengths(columns, read)};
    if (midRecord && read == 1) {
        broken.emplace_back();
    }
    for (std::size_t appended = 0; midRecord && read > 0 && appended < columns; ++appended) {
        Lengths& lengths = broken.emplace_back(columns, read - 1);
        std::fill_n(lengths.begin(), appended, read);
    }
    return broken;
}

// A refusal of a later list does not depend on what was read of an earlier one.
Ending Expectation::afterBrokenReading(std::size_t events, const Lengths& broken) const
{
    const Lines rest = linesIn(events, whole_.events.size());
    if (std::ranges::find(rest, stepThree) != rest.end()) {
        return {rest, false};
    }
    const int list = listAt(events);
    const Lengths other = command_.second.empty() ? broken : Lengths(names(3 - list).size(), caseCount);
    return list == 1 ? afterReading(broken, other) : afterReading(other, broken);
}

}  // namespace tests
