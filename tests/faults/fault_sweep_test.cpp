// Every host call of a command fails once, and every allocation of the module: whatever happens, the command ends, says
// what it has to say, and leaves nothing behind.
#include "module/entry/entry_point.h"
#include "standin/csv_reader.h"
#include "standin/session.h"
#include "tests/faults/event_log.h"
#include "tests/faults/module_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <new>
#include <numeric>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

/// The names of variables are letters.
struct Command {
    std::string first;
    std::string second;  ///< empty: no WITH
    std::string rest;
    const char* language = "en";

    std::string text() const
    {
        return "VARIABLE=" + spaced(first) + (second.empty() ? "" : " WITH=" + spaced(second)) + " " + rest;
    }
    bool isPaired() const { return rest.starts_with("PAIRED=YES"); }
    bool isListwise() const { return rest.find("LISTWISE") != std::string::npos; }

private:
    static std::string spaced(const std::string& names)
    {
        return std::accumulate(names.begin(), names.end(), std::string(),
                               [](const std::string& text, char name) { return text + name + ' '; });
    }
};

// Together they reach every table, every plot and every branch of the readers.
const std::vector<Command> commands{
    {"a", "b",
     "CRITERIA(LOGTRANSFORM=TRUE PERCENTAGE=TRUE) PRINT(DETAILS ROWS=3 SORT(BY=MEAN DESCENDING=FALSE) MEANDIFF "
     "AGREEMENT "
     "PERCENTAGE) PLOT(RATIO REFLINE AGREEMENT_LIMITS=CI CI_MEANDIFF)"},
    {"a", "cb",
     "PAIRED=YES CRITERIA(SCOPE=LISTWISE AGREEMENT_LIMITS=TWOSD CILEVEL_MEANDIFF=90) PRINT(DETAILS SORT AGREEMENT) "
     "PLOT(AGREEMENT_LIMITS)",
     "zh_CN"},
    {"abc", "", ""},
    {"ab", "ba", "PRINT(DETAILS SORT(BY=RATIO)) PLOT()", "es"},
    {"at", "b", ""},  // t is not scale
    {"a", "t", ""},
    {"a", "z", ""},      // no such variable
    {"ab", "", "WITH"},  // the parser refuses
};

const char* const data = "a,b,c,t\n1,2,2,x\n3,5,,y\n4,4,5,x\n2,3,1,\n7,6,6,x\n";
constexpr std::size_t caseCount = 5;
constexpr std::size_t caseWithoutC = 1;

const char* const stepOne = "bldatman_entry: Step1 Unknown error occurred.";
const char* const stepThree = "bldatman_entry: Step3 Unknown error occurred.";
const char* const stepFive = "bldatman_entry: Step5 Unknown error occurred.";

struct Fault {
    long call = 0;  ///< which host call fails, 0: none
    std::function<void()> raise;
    long allocation = 0;  ///< which allocation of the module fails, 0: none
};

/// What a run did.
struct Run {
    Lines events;
    std::vector<std::size_t> allocations;  ///< for each of the module, the events before it
    bool delivered = false;
    bool escaped = false;
    bool leaked = false;

    Lines lines() const
    {
        Lines lines;
        std::ranges::copy_if(events, std::back_inserter(lines),
                             [](const auto& event) { return !tests::isCall(event); });
        return lines;
    }
};

Run runOf(const Command& command, const Fault& fault)
{
    constexpr std::size_t moreThanAnyRunMakes = 1U << 17U;
    Run run;
    run.allocations.reserve(moreThanAnyRunMakes);
    standin::Session session;
    session.setLanguage(command.language);
    session.dataSet = standin::readCsv(data, "data.csv");
    session.command = standin::singleCommand(command.text());
    tests::EventLog log;
    session.monitor.traceTo(&log.stream());
    session.monitor.failAtCall(fault.call, fault.raise);
    {
        const tests::ModuleMemory memory(fault.allocation, [&] { run.allocations.push_back(log.eventCount()); });
        try {
            run.delivered = session.run(BLDATMAN);
        } catch (...) {
            run.escaped = true;
        }
        run.leaked = tests::ModuleMemory::stillAllocated() != 0 || !session.monitor.breach().empty();
    }
    session.monitor.traceTo(nullptr);
    run.events = log.events();
    return run;
}

/// Who meets an error that is raised there.
enum class Place { Entry, Describing, Settings, Reading };

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

/// How many values each column of a list holds.
using Lengths = std::vector<std::size_t>;

struct Ending {
    Lines lines;
    bool delivered = false;

    friend bool operator==(const Ending&, const Ending&) = default;
};

/// How a command ends when its lists have been read that far: the analysis, told anew in terms of lengths.
class ReadLists {
public:
    explicit ReadLists(const Command& command)
        : command_(command)
        , second_(command.second.empty() ? command.first : command.second)
    {
    }

    const std::string& names(int list) const { return list == 1 ? command_.first : second_; }

    Ending ending(const Lengths& first, const Lengths& second) const
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
                const long cases = usable(names(1)[i], names(2)[j], std::min(first[i], second[j]));
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

private:
    static Ending refused(std::string line) { return {{std::move(line)}, false}; }

    static long usable(char a, char b, std::size_t length)
    {
        const bool withoutOne = (a == 'c' || b == 'c') && length > caseWithoutC;
        return static_cast<long>(length) - (withoutOne ? 1 : 0);
    }

    const Command& command_;
    std::string second_;
};

/// What each fault must lead to, worked out from a run without any.
class Expectation {
public:
    Expectation(const Command& command, const Run& whole)
        : whole_(whole)
        , lists_(command)
        , places_(placesOf(whole.events))
    {
    }

    Place placeOf(std::size_t event) const { return places_[std::min(event, places_.size() - 1)]; }

    /// The endings that are right when `error` is raised there, after so many events: one, or for an error in the midst
    /// of a record one for each column at which the record may have been broken off.
    std::vector<Ending> endings(Place place, std::size_t events, const std::string& error, bool midRecord) const
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
            Ending rest = afterReading(events, broken);
            endings.push_back({joined(joined(before, {error}), rest.lines), rest.delivered});
        }
        return endings;
    }

private:
    static Lines joined(Lines one, const Lines& other)
    {
        one.insert(one.end(), other.begin(), other.end());
        return one;
    }

    Lines linesIn(std::size_t from, std::size_t to) const
    {
        Lines lines;
        std::copy_if(whole_.events.begin() + static_cast<std::ptrdiff_t>(from),
                     whole_.events.begin() + static_cast<std::ptrdiff_t>(to), std::back_inserter(lines),
                     [](const auto& event) { return !tests::isCall(event); });
        return lines;
    }

    std::size_t countBefore(std::size_t events, const char* call) const
    {
        return static_cast<std::size_t>(std::count_if(whole_.events.begin(),
                                                      whole_.events.begin() + static_cast<std::ptrdiff_t>(events),
                                                      [call](const auto& event) { return event.starts_with(call); }));
    }

    /// Which list is read after so many events; while its first object is being made it is the next one.
    int listAt(std::size_t events) const
    {
        const auto begun = countBefore(events, "ACAVarValidSpecs::ACA");
        return static_cast<int>(begun == countBefore(events, "ACAVarValidSpecs::~ACA") ? begun + 1 : begun);
    }

    std::vector<Lengths> brokenLists(std::size_t events, bool midRecord) const
    {
        const std::size_t columns = lists_.names(listAt(events)).size();
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

    /// A refusal of a later list does not depend on what was read of an earlier one.
    Ending afterReading(std::size_t events, const Lengths& broken) const
    {
        const Lines rest = linesIn(events, whole_.events.size());
        if (std::ranges::find(rest, stepThree) != rest.end()) {
            return {rest, false};
        }
        const int list = listAt(events);
        const bool oneListOnly = countBefore(whole_.events.size(), "ACAVarValidSpecs::ACA") == 1;
        const Lengths full(lists_.names(3 - list).size(), caseCount);
        const Lengths& other = oneListOnly ? broken : full;
        return list == 1 ? lists_.ending(broken, other) : lists_.ending(other, broken);
    }

    const Run& whole_;
    ReadLists lists_;
    std::vector<Place> places_;
};

class Sweep {
public:
    explicit Sweep(const Command& command)
        : command_(command)
        , whole_(runOf(command, {}))
        , expectation_(command, whole_)
    {
    }

    void failEveryCall()
    {
        std::size_t event = 0;
        for (const std::string& call : whole_.events) {
            if (tests::isCall(call) && call.find("::~") == std::string::npos) {
                ++calls;
                failCall(event, "Standard exception: out of order", [] { throw std::runtime_error("out of order"); });
                failCall(event, "Unknown exception occurred.", [] { throw 7; });
            }
            ++event;
        }
    }

    void failEveryAllocation()
    {
        Place reached = Place::Entry;
        std::size_t gap = 0;
        for (std::size_t n = 0; n < whole_.allocations.size(); ++n) {
            const std::size_t events = whole_.allocations[n];
            if (events != gap || n == 0) {
                gap = events;
                reached = expectation_.placeOf(events == 0 ? 0 : events - 1);
            }
            const Run run = runOf(command_, {0, {}, static_cast<long>(n) + 1});
            const std::string error = "Standard exception: " + std::string(std::bad_alloc().what());
            // Between the last call of one place and the first of the next, the one is left for the other, once.
            if (!isOneOf(run, expectation_.endings(reached, events, error, true))) {
                reached = expectation_.placeOf(events);
            }
            judge(run, expectation_.endings(reached, events, error, true),
                  "allocation " + std::to_string(n + 1) + " after " + lastCall(events));
        }
    }

    long calls = 0;
    long injected = 0;
    long escaped = 0;
    long leaked = 0;
    long wrong = 0;

private:
    static bool isOneOf(const Run& run, const std::vector<Ending>& endings)
    {
        return std::ranges::find(endings, Ending{run.lines(), run.delivered}) != endings.end();
    }

    std::string lastCall(std::size_t events) const { return events == 0 ? "nothing" : whole_.events[events - 1]; }

    void failCall(std::size_t event, const std::string& error, const std::function<void()>& raise)
    {
        const Run run = runOf(command_, {calls, raise, 0});
        judge(run, expectation_.endings(expectation_.placeOf(event), event, error, false),
              "call " + std::to_string(calls) + ", " + whole_.events[event]);
    }

    void judge(const Run& run, const std::vector<Ending>& right, const std::string& where)
    {
        ++injected;
        escaped += run.escaped ? 1 : 0;
        leaked += run.leaked ? 1 : 0;
        if (!isOneOf(run, right)) {
            ++wrong;
        }
        if (run.escaped || run.leaked || !isOneOf(run, right)) {
            ADD_FAILURE() << command_.text() << "\nfault at " << where << (run.escaped ? "\nescaped" : "")
                          << (run.leaked ? "\nleaked" : "") << "\nwritten:\n"
                          << testing::PrintToString(run.lines()) << "\nright:\n"
                          << testing::PrintToString(right.front().lines);
        }
    }

    const Command& command_;
    Run whole_;
    Expectation expectation_;
};

TEST(Faults, EndTheCommandWithTheirLinesAndLeaveNothingBehind)
{
    long calls = 0;
    long injected = 0;
    long escaped = 0;
    long leaked = 0;
    long wrong = 0;
    for (const Command& command : commands) {
        Sweep sweep(command);
        sweep.failEveryCall();
        sweep.failEveryAllocation();
        calls += sweep.calls;
        injected += sweep.injected;
        escaped += sweep.escaped;
        leaked += sweep.leaked;
        wrong += sweep.wrong;
    }
    std::cout << "faults: calls=" << calls << " injected=" << injected << " escaped=" << escaped << " leaked=" << leaked
              << " wrong=" << wrong << '\n';
    EXPECT_GT(calls, 3000);
}

}  // namespace
