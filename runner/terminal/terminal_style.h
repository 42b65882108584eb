// How text looks on the standard output.
#pragma once

#include "report/formats/render_text.h"

namespace runner {

/// On a terminal as wide as the terminal, though at least 40 columns, and with colours, unless NO_COLOR is set to
/// anything or the terminal shows none; elsewhere the plain style of text files.
report::TextStyle standardOutputStyle();

}  // namespace runner
