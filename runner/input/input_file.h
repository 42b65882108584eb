// Whole files in.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

namespace runner {

/// Told now and then how much is done of how much; the latter is 0 where it is not known. May be empty.
using Progress = std::function<void(std::size_t done, std::size_t total)>;

/// The bytes of a file.
/// @param progress  is told of bytes
/// @throws InputError  when it cannot be read, or was changed meanwhile
std::string readWholeFile(const std::filesystem::path& file, const Progress& progress = {});

}  // namespace runner
