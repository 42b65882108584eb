// Reads a CSV file into a data set.
#pragma once

#include "runner/input/input_file.h"
#include "standin/data/data_set.h"

#include <string>
#include <string_view>

namespace runner {

/// Reads CSV as RFC 4180 has it: UTF-8 (a byte-order mark is skipped), a header row, lines ended by LF, CR LF or CR,
/// blank lines skipped; the delimiter is recognised in the header row among ',' ';' and tab, and with ';' or tab a
/// decimal comma is read as well.
///
/// A cell is missing when it is empty, ".", "NA" or "NaN" in any case. A variable whose other cells are all finite
/// numbers, or that has none, is scale; any other is nominal with its texts as value labels.
///
/// @param fileName  for the messages
/// @param progress  is told of bytes, and again from the first on for the second walk that columns of texts take
/// @throws InputError  for a malformed file, naming file, line and reason
standin::DataSet readCsv(std::string_view text, const std::string& fileName, const Progress& progress = {});

}  // namespace runner
