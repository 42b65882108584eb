// Plots as files of their own.
#pragma once

#include "report/report.h"

#include <filesystem>
#include <string>
#include <vector>

namespace runner {

/// Writes every plot of the report as an SVG file into a folder, which is made where it is missing. The files are named
/// after their place in the report and their title: "02-Bland-Altman-Plot-of-Ratios-a-b.svg". A plot that cannot be
/// drawn or written does not keep the others from being written; gives a sentence for each.
std::vector<std::string> writePlotFiles(const report::Report& report, const std::filesystem::path& folder);

}  // namespace runner
