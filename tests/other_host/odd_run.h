// Runs commands on the second host.
#pragma once

#include "this_host.h"

#include <string>
#include <vector>

namespace tests {

using Texts = std::vector<std::string>;
using Oddities = std::map<std::string, other::Oddity>;

/// The pieces of a text between separators.
Texts split(const std::string& text, char separator);

/// What a command left behind; the trace is the host's.
struct Outcome {
    Texts documents;
    std::string errors;

    bool operator==(const Outcome&) const = default;
};

/// @param data  rows between semicolons: the names, then the cases. A point is a missing value; what is no number makes
///              its variable nominal.
Outcome run(const std::string& data, const std::string& command, const Oddities& oddities = {},
            const std::string& language = "en");

}  // namespace tests
