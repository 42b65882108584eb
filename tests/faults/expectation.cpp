#include "tests/faults/expectation.h"

#include <algorithm>
#include <iterator>

namespace tests {

namespace {

/// Where one step gives way to the next: between the call with which the next begins and the call before that. Of the
/// allocations there the first so many are still the earlier step's.
struct Border {
    const char* call;
    std::size_t allocations;
    Step next;
};

std::vector<Border> bordersOf(const Command& command)
{
    constexpr std::size_t positionsOfVariables = 1;
    const std::size_t columns = command.first.size() + (command.second.empty() ? command.first : command.second).size();
    const std::size_t convertedSettings = columns + 4;  // of each list the names, the columns and what these hold
    const char* const opensCases = "ACAVarValidSpecs::ACAVarValidSpecs";
    const char* const closesCases = "ACAVarValidSpecs::~";
    std::vector<Border> borders{{"SubComDescriptor::SubComDescriptor", 0, Step::Describing},
                                {"CommandSpec::CommandSpec", 0, Step::Frame},
                                {"CommandSpec::getSubComObj", 0, Step::Settings},
                                {opensCases, positionsOfVariables, Step::FirstReading},
                                {closesCases, 0, Step::Settings}};
    if (!command.second.empty()) {
        borders.push_back({opensCases, positionsOfVariables, Step::SecondReading});
        borders.push_back({closesCases, 0, Step::Settings});
    }
    borders.push_back({opensCases, convertedSettings, Step::Frame});  // the output makes one too
    return borders;
}

/// A command that is refused comes to some of the borders only.
std::vector<Step> stepsOf(const Command& command, const Lines& events)
{
    std::vector<Step> steps(events.size(), Step::Frame);
    auto from = events.begin();
    for (const Border& border : bordersOf(command)) {
        const auto call = std::find_if(from, events.end(), [&](const auto& e) { return e.starts_with(border.call); });
        if (call == events.end()) {
            break;
        }
        const auto callBefore = std::find_if(std::make_reverse_iterator(call), events.rend(), isCall);
        const auto begin = callBefore.base() - events.begin() + static_cast<std::ptrdiff_t>(border.allocations);
        std::fill(steps.begin() + begin, steps.end(), border.next);
        from = call + 1;
    }
    return steps;
}

Lines joined(Lines one, const Lines& other)
{
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

}  // namespace

Expectation::Expectation(const Command& command, const Lines& events)
    : command_(command)
    , events_(events)
    , steps_(stepsOf(command, events))
{
}

Ending Expectation::afterFault(std::size_t event, const std::string& error) const
{
    const Lines before = linesAmong(events_, event);
    switch (steps_[event]) {
    case Step::Describing:
        return {joined(before, {"BldatmanCommandDescriber: " + error, stepOne}), false};
    case Step::Settings:
        return {joined(before, {"BldatmanInputSetting::start: " + error, stepThree}), false};
    case Step::FirstReading:
    case Step::SecondReading: {
        const auto& endings = command_.broken.at(steps_[event] == Step::FirstReading ? 0 : 1);
        const Ending& rest = std::prev(endings.upper_bound(valuesStored(event)))->second;
        return {joined(joined(before, {error}), rest.lines), rest.delivered};
    }
    case Step::Frame:
        break;
    }
    return {joined(before, {"BLDATMAN: " + error}), false};
}

/// Of the list that is being read. Between two records there are as many allocations as there are columns, one for each
/// that grows, or none; after the first record there is one more, before them, for the columns themselves.
int Expectation::valuesStored(std::size_t event) const
{
    const auto begin = events_.begin() + (std::ranges::find(steps_, steps_[event]) - steps_.begin());
    const auto fault = events_.begin() + static_cast<std::ptrdiff_t>(event);
    const auto records =
        std::count_if(begin, fault, [](const auto& e) { return e.starts_with("RecKit::Record::GetAll"); });
    if (records == 0) {
        return noColumns;
    }
    const std::string& names = steps_[event] == Step::FirstReading ? command_.first : command_.second;
    const auto missing = std::find_if_not(fault, events_.end(), isAllocation) - fault;
    const auto columns = static_cast<std::ptrdiff_t>(names.size());
    return missing > columns ? noColumns : static_cast<int>(records * columns - missing);
}

}  // namespace tests
