// The forms in which a report can be written.
#pragma once

#include "report/report.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace runner {

/// Writes a report to a file or into a folder; gives, a sentence each, what could not be written.
using OutputWriter = std::vector<std::string> (*)(const report::Report& report, const std::filesystem::path& place);

/// One output that was asked for.
struct OutputRequest {
    std::filesystem::path place;  ///< a file, or a folder
    OutputWriter write;
};

/// The writer for a name, by its ending; null when there is none.
OutputWriter writerFor(std::string_view name);

/// What the name of an output may end in, in words: ".json, .html or .txt, ...".
std::string knownEndings();

}  // namespace runner
