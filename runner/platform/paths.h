// Paths as UTF-8 texts, whatever the platform holds them in, and what the system says of them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace runner {

/// The path that a text names; where paths are bytes, those of the text.
std::filesystem::path pathOf(std::string_view text);

/// A path as it stands in a message.
std::string shown(const std::filesystem::path& path);

/// True when both paths lead to one file, whether or not it exists.
bool isSameFile(const std::filesystem::path& one, const std::filesystem::path& other);

/// Why something failed, in the same words on every system.
std::string reasonOf(const std::error_code& error);

/// The same of the last call into the C library.
std::string lastReason();

}  // namespace runner
