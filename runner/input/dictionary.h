// Reads a dictionary, which says more about the variables of a data set than its file can.
#pragma once

#include "standin/data/data_set.h"

#include <string>
#include <string_view>

namespace runner {

/// Applies a dictionary to a data set. The dictionary is a JSON object
///
///     {"variables": {"NAME": {"label": TEXT, "level": "scale" | "nominal" | "ordinal",
///                             "valueLabels": {"NUMBER": TEXT, ...}, "missing": [NUMBER, ...]}, ...}}
///
/// in which every member may be left out. A level overrides the one that the reader found, not what the cells are:
/// texts stay texts. Values equal to a missing code become the system-missing value. Value labels and missing codes
/// apply to numeric variables; a variable of texts keeps its own labels, and its values are no numbers of the file.
/// The text is UTF-8, a byte-order mark is skipped. A member that stands twice in one object is an error, as is one
/// that is not listed above.
///
/// @param fileName  for the messages
/// @throws InputError  naming file, line and reason; the data set is then unchanged
void applyDictionary(standin::DataSet& dataSet, std::string_view text, const std::string& fileName);

}  // namespace runner
