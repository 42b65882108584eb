// What each fault in a command must lead to.
#pragma once

#include "tests/faults/faulty_run.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tests {

/// What a command writes, and whether it delivers a document.
struct Ending {
    Lines lines;
    bool delivered = false;

    friend bool operator==(const Ending&, const Ending&) = default;
};

/// Who meets an error that is raised there.
enum class Place { Entry, Describing, Settings, Reading };

/// Worked out from a run without any fault.
class Expectation {
public:
    /// Both outlive the object.
    Expectation(const Command& command, const Run& whole);

    /// Who meets an error raised by this event of the run, or after it and before the next.
    Place placeOf(std::size_t event) const;

    /// The endings that are right when `error` is raised in that place after so many events: one, or for an error in
    /// the midst of a record one for each column at which the record may have been broken off.
    std::vector<Ending> endings(Place place, std::size_t events, const std::string& error, bool midRecord) const;

    /// How the command ends when each column of its lists holds so many values: the analysis, told anew in terms of
    /// lengths, as far as the swept commands need it.
    Ending afterReading(const std::vector<std::size_t>& first, const std::vector<std::size_t>& second) const;

    /// The names in the list that is read first, or second.
    const std::string& names(int list) const;

private:
    Lines linesIn(std::size_t from, std::size_t to) const;
    std::size_t countBefore(std::size_t events, const char* call) const;
    int listAt(std::size_t events) const;
    std::vector<std::vector<std::size_t>> brokenLists(std::size_t events, bool midRecord) const;
    Ending afterBrokenReading(std::size_t events, const std::vector<std::size_t>& broken) const;

    const Command& command_;
    const Run& whole_;
    std::vector<Place> places_;
};

}  // namespace tests
