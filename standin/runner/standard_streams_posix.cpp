#include "standin/runner/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

namespace standin {

void prepareStandardStreams()
{
    // The lowest free descriptor is the one that `open` gives.
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) == -1) {
            (void)open("/dev/null", O_RDONLY | O_CLOEXEC);  // NOLINT(cppcoreguidelines-pro-type-vararg)
        }
    }
}

}  // namespace standin
