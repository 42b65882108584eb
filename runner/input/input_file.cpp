#include "runner/input/input_file.h"

#include "runner/input/input_error.h"
#include "runner/platform/paths.h"

#include <cerrno>
#include <cstdint>
#include <fstream>
#include <istream>
#include <system_error>
#include <vector>

namespace runner {

namespace fs = std::filesystem;

namespace {

/// In bytes; 0 for what has no size beforehand, such as a pipe.
std::uintmax_t sizeIfKnown(const fs::path& file)
{
    std::error_code unknown;
    const std::uintmax_t size = fs::file_size(file, unknown);
    return unknown ? 0 : size;
}

/// All that the stream still holds.
/// @param size  how much that should be
std::string readAll(std::istream& stream, std::size_t size, const Progress& progress)
{
    constexpr std::size_t chunkSize = 1 << 16;
    std::string bytes;
    bytes.reserve(size);
    std::vector<char> chunk(chunkSize);
    while (stream.read(chunk.data(), chunkSize) || stream.gcount() > 0) {
        bytes.append(chunk.data(), static_cast<std::size_t>(stream.gcount()));
        if (progress) {
            progress(bytes.size(), size);
        }
    }
    return bytes;
}

}  // namespace

std::string readWholeFile(const fs::path& file, const Progress& progress)
{
    std::error_code unknown;
    if (fs::is_directory(file, unknown)) {
        throw InputError(shown(file), "cannot be read: it is a folder");
    }
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw InputError(shown(file), "cannot be read: " + lastReason());
    }
    const std::uintmax_t size = sizeIfKnown(file);
    std::string bytes = readAll(stream, size, progress);
    if (stream.bad()) {
        throw InputError(shown(file), "cannot be read to its end: " + lastReason());
    }
    if (size > 0 && (bytes.size() != size || sizeIfKnown(file) != size)) {
        throw InputError(shown(file), "was changed while it was read");
    }
    return bytes;
}

}  // namespace runner
