#include "runner/platform/paths.h"

#include "runner/platform/platform.h"

#include <cerrno>

namespace runner {

namespace fs = std::filesystem;

fs::path pathOf(std::string_view text)
{
    return fs::path(std::u8string(text.begin(), text.end()));
}

std::string shown(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

bool isSameFile(const fs::path& one, const fs::path& other)
{
    std::error_code error;
    if (fs::equivalent(one, other, error)) {
        return true;
    }
    return isSameName(fs::weakly_canonical(fs::absolute(one), error), fs::weakly_canonical(fs::absolute(other), error));
}

std::string reasonOf(const std::error_code& error)
{
    return error.default_error_condition().message();
}

std::string lastReason()
{
    return reasonOf({errno, std::generic_category()});
}

}  // namespace runner
