// When two names are one.
#pragma once

#include <filesystem>

namespace standin {

/// True when the system takes both for the name of one file; links are followed elsewhere.
bool isSameName(const std::filesystem::path& one, const std::filesystem::path& other);

}  // namespace standin
