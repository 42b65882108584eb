#include "runner/output/output_file.h"

#include "runner/platform/paths.h"

#include <cerrno>
#include <random>
#include <system_error>

namespace runner {

namespace fs = std::filesystem;

namespace {

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

}  // namespace

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

}  // namespace runner
