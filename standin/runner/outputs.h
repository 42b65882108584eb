// The outputs of a run.
#pragma once

#include "standin/runner/options.h"
#include "standin/session.h"

#include <string>
#include <vector>

namespace standin {

/// Writes the documents of the session, at least one, to all places that the options name, or where they name none as
/// text to the standard output. Gives, a sentence each, what could not be written; it does not keep the rest from being
/// written.
std::vector<std::string> writeOutputs(const Session& session, const Options& options);

}  // namespace standin
