// Whole files in.
#pragma once

#include "runner/input/progress.h"

#include <filesystem>
#include <string>

namespace runner {

/// The bytes of a file.
/// @param progress  is told of bytes
/// @throws InputError  when it cannot be read, or was changed meanwhile
std::string readWholeFile(const std::filesystem::path& file, const Progress& progress = {});

}  // namespace runner
