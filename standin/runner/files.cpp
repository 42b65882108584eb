#include "standin/runner/files.h"

#include "standin/input_error.h"
#include "standin/runner/file_names.h"
#include "standin/runner/paths.h"

#include <cerrno>
#include <cstdint>
#include <istream>
#include <random>
#include <system_error>
#include <vector>

namespace standin {

namespace fs = std::filesystem;

namespace {

/// Of the last call into the C library.
std::string lastReason()
{
    return reasonOf({errno, std::generic_category()});
}

/// The file itself where the path is a link, so that the link stays one.
fs::path resolved(const fs::path& file)
{
    std::error_code error;
    fs::path target = fs::canonical(file, error);
    if (!error) {
        return target;
    }
    const fs::path dangling = fs::read_symlink(file, error);
    return error ? file : file.parent_path() / dangling;
}

fs::path partialNameBeside(const fs::path& file)
{
    return file.parent_path() / (".bldatman-" + std::to_string(std::random_device{}()) + ".partial");
}

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

std::string reasonOf(const std::error_code& error)
{
    return error.default_error_condition().message();
}

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

bool isSameFile(const fs::path& one, const fs::path& other)
{
    std::error_code error;
    if (fs::equivalent(one, other, error)) {
        return true;
    }
    return isSameName(fs::weakly_canonical(fs::absolute(one), error), fs::weakly_canonical(fs::absolute(other), error));
}

OutputFile::OutputFile(const fs::path& file)
    : named_(file)
    , file_(resolved(file))
    , partial_(partialNameBeside(file_))
{
    std::error_code unknown;
    const fs::file_status status = fs::status(file_, unknown);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        fail("it is not a file");
    }
    errno = 0;
    stream_.open(partial_, std::ios::binary);
    if (!stream_) {
        fail(lastReason());
    }
}

OutputFile::~OutputFile()
{
    stream_.close();
    std::error_code ignored;
    fs::permissions(partial_, fs::perms::owner_write, fs::perm_options::add, ignored);  // without it some keep the file
    fs::remove(partial_, ignored);
}

void OutputFile::write(const std::string& text)
{
    errno = 0;
    stream_ << text << std::flush;
    if (!stream_) {
        fail(lastReason());
    }
}

void OutputFile::commit()
{
    errno = 0;
    stream_.close();
    if (!stream_) {
        fail(errno != 0 ? lastReason() : "not everything could be written");
    }
    std::error_code error;
    const fs::file_status replaced = fs::status(file_, error);
    if (fs::exists(replaced)) {
        fs::permissions(partial_, replaced.permissions(), error);
    }
    fs::rename(partial_, file_, error);
    if (error) {
        fail(reasonOf(error));
    }
}

void OutputFile::fail(const std::string& reason) const
{
    throw OutputError(shown(named_) + ": cannot be written: " + reason);
}

}  // namespace standin
