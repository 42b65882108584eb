// Hands what came out of a run to where it is wanted.
#pragma once

#include "runner/output/output_formats.h"

#include <rapidjson/document.h>

#include <list>
#include <string>
#include <vector>

namespace runner {

inline const char* const standardOutputFailed = "the standard output cannot be written";

/// Writes the documents of a run, at least one, to all places that were asked for, or where there is none as text to
/// the standard output. Gives, a sentence each, what could not be written; it does not keep the rest from being
/// written.
///
/// @param language  the code of the output language
std::vector<std::string> writeOutputs(const std::list<rapidjson::Document>& documents, const std::string& language,
                                      const std::vector<OutputRequest>& outputs);

}  // namespace runner
