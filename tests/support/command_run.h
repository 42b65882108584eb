// Runs whole commands in-process: the module's objects against the stand-in, with everything that came out at hand.
#pragma once

#include "tests/support/captured_errors.h"
#include "tests/support/json_text.h"
#include "tests/support/traced_session.h"

#include <rapidjson/document.h>

#include <string>
#include <vector>

namespace tests {

/// What one command left behind.
struct Outcome {
    bool delivered;
    std::string errors;              ///< the standard error stream; complaints of the host as "HOST: ..." lines
    std::vector<std::string> trace;  ///< one line per host call
};

/// A host with a data set, ready to run commands. Breaches of the contract fail the test.
class Host : public TracedSession {
public:
    using TracedSession::TracedSession;

    Outcome run(const std::string& command);

    /// The document of the last command that delivered one.
    const rapidjson::Document& document() const { return session.documents.back(); }

    /// The n-th table or graph of that document.
    const rapidjson::Value& object(rapidjson::SizeType n) const { return document()["objects"][n]; }
};

/// The calls of a command, as `callsOf` for a trace has them.
inline std::vector<std::string> callsOf(const Outcome& outcome, const std::vector<std::string>& prefixes)
{
    return callsOf(outcome.trace, prefixes);
}

}  // namespace tests
