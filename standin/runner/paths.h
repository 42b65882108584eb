// Paths as UTF-8 texts, whatever the platform holds them in.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace standin {

/// The path that a text names; where paths are bytes, those of the text.
inline std::filesystem::path pathOf(std::string_view text)
{
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

/// A path as it stands in a message.
inline std::string shown(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

}  // namespace standin
