// How text looks on the standard output.
#pragma once

#include "standin/render/render_text.h"

namespace standin {

/// On a terminal as wide as the terminal, though at least 40 columns, and with colours, unless NO_COLOR is set to
/// anything or the terminal shows none; elsewhere the plain style of text files.
TextStyle standardOutputStyle();

}  // namespace standin
