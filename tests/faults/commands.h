// The commands in which everything fails once, and how each of them ends.
#pragma once

#include "tests/faults/event_log.h"

#include <map>
#include <string>
#include <vector>

namespace tests {

/// What a command writes, and whether it delivers a document.
struct Ending {
    Lines lines;
    bool delivered = false;

    friend bool operator==(const Ending&, const Ending&) = default;
};

/// How a command goes on when the reading of a list breaks off, by how many values it has stored by then: each row
/// holds from its number on. Values are stored case by case, in the order of the list.
using EndingsByValues = std::map<int, Ending>;

/// Not even the empty columns are there.
inline constexpr int noColumns = -1;

/// The names of variables are letters.
struct Command {
    std::string first;
    std::string second;  ///< empty: no WITH
    std::string rest;
    Ending whole;                         ///< when nothing fails
    std::vector<EndingsByValues> broken;  ///< for each list that is read; what follows the line of the error
    const char* language = "en";

    std::string text() const;
};

/// The data of all of them: of the five cases the second has no c; t is no scale variable.
inline constexpr const char* data = "a,b,c,t\n1,2,2,x\n3,5,,y\n4,4,5,x\n2,3,1,\n7,6,6,x\n";

extern const std::vector<Command> commands;

extern const char* const stepOne;
extern const char* const stepThree;

}  // namespace tests
