// One run of a command, in which something fails.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tests {

using Lines = std::vector<std::string>;

/// The names of variables are letters.
struct Command {
    std::string first;
    std::string second;  ///< empty: no WITH
    std::string rest;
    const char* language = "en";
    Lines expected = {};  ///< what it writes when nothing fails

    std::string text() const;
    bool isPaired() const { return rest.starts_with("PAIRED=YES"); }
    bool isListwise() const { return rest.find("LISTWISE") != std::string::npos; }
};

/// The data of every run: the numbers a, b and c, of which one case has no c, and the texts t.
constexpr std::size_t caseCount = 5;
constexpr std::size_t caseWithoutC = 1;

struct Fault {
    long call = 0;  ///< which host call fails, from 1; 0: none
    std::function<void()> raise;
    long allocation = 0;  ///< which allocation of the module fails, from 1; 0: none
};

/// What a run did.
struct Run {
    Lines events;                          ///< calls and lines, in order
    std::vector<std::size_t> allocations;  ///< for each of the module, the events before it
    bool delivered = false;
    bool escaped = false;  ///< an error left the entry point
    bool leaked = false;   ///< a host object or a block of the module's memory is left

    Lines lines() const;
};

Run runOf(const Command& command, const Fault& fault);

}  // namespace tests
