// The work of bldatman-run, once its command line has been read.
#pragma once

#include "runner/options.h"

namespace runner {

/// Reads the inputs, runs every command, writes the outputs. Every reason goes to the standard error stream.
/// Returns an `ExitStatus`.
int run(const Options& options);

}  // namespace runner
