// One command, from its syntax to its output.
#pragma once

namespace bldatman {

/// Runs one command in five steps: describe the syntax, parse, read the settings and the data, analyse, build the
/// output. A step that reports failure ends the command with a line that names the step. Errors raised by the analysis
/// and the output are not caught here.
void bldatman_entry();

}  // namespace bldatman
