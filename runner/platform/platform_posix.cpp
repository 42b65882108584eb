#include "runner/platform/platform.h"

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

namespace runner {

std::vector<std::string> argumentsOf(int argc, char** argv)
{
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

void prepareStandardStreams()
{
    // The lowest free descriptor is the one that `open` gives.
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) == -1) {
            (void)open("/dev/null", O_RDONLY | O_CLOEXEC);  // NOLINT(cppcoreguidelines-pro-type-vararg)
        }
    }
}

void returnLargeBlocks()
{
    constexpr int mebibyte = 1 << 20;
    mallopt(M_MMAP_THRESHOLD, mebibyte);
}

bool isSameName(const std::filesystem::path& one, const std::filesystem::path& other)
{
    return one == other;
}

}  // namespace runner
