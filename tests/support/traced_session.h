// A session with data whose host calls are traced.
#pragma once

#include "standin/session/session.h"

#include <sstream>
#include <string>
#include <vector>

namespace tests {

/// The lines of a trace that begin with one of the prefixes, in order, tabs as blanks.
std::vector<std::string> callsOf(const std::vector<std::string>& trace, const std::vector<std::string>& prefixes);

/// How many calls that may fail a trace holds up to the n-th line that begins with `prefix`, that line included.
long fallibleCallsUpTo(const std::vector<std::string>& trace, const std::string& prefix, int n = 1);

class TracedSession {
public:
    /// @param data  lines that end in semicolons: the names of the variables, then a line for each case. A cell in
    ///              double quotes may hold commas, and double quotes doubled. "", "." and "NA" are missing; another
    ///              cell that is no number makes its variable nominal, its texts coded 1, 2, ... as they appear.
    explicit TracedSession(const std::string& data = "a");

    /// The calls since the last time that this was asked.
    std::vector<std::string> takeTrace();

    standin::Session session;

private:
    std::ostringstream trace_;
};

}  // namespace tests
