// The command line of bldatman-run.
#pragma once

#include "runner/output/output_formats.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace runner {

/// The exit statuses of the program. Of several that apply, the one that stands furthest below wins.
enum ExitStatus : int {
    exitDelivered = 0,         ///< every command delivered a document
    exitCommandFailed = 1,     ///< some command ended without one
    exitBadInput = 2,          ///< bad usage, unreadable input, no library: nothing was run
    exitOutputNotWritten = 3,  ///< it ran, but an output could not be written
    exitContractBroken = 4,    ///< the module broke the host's contract
};

struct Options {
    std::filesystem::path dataFile;
    std::optional<std::string> command;
    std::filesystem::path commandFile;     ///< empty with `command`
    std::filesystem::path dictionaryFile;  ///< empty: none
    std::string language = "en";
    std::vector<OutputRequest> outputs;
    std::filesystem::path module;     ///< empty: the one beside the host's library
    std::filesystem::path traceFile;  ///< empty: none
};

/// What the command line asks for, or the status with which the program ends at once, its reason having been written.
struct CommandLine {
    std::optional<Options> options;
    int exitStatus = exitDelivered;
};

/// @param arguments  the words of the command line, without the program's name
CommandLine readCommandLine(std::vector<std::string> arguments);

}  // namespace runner
