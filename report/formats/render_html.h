// The documents of a run as one page for a browser.
#pragma once

#include "report/report.h"

#include <string>

namespace report {

/// One HTML file that needs nothing else: every table and every plot in the order of the documents, plots as SVG, or as
/// a sentence with the reason where a plot cannot be drawn. A list of contents comes first where one of several things
/// that are alike has to be found: more than one document, a table that appears twice, plots over different horizontal
/// axes.
std::string renderHtml(const Report& report);

}  // namespace report
