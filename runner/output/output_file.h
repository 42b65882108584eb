// Whole files out.
#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace runner {

/// A file could not be written; `what()` says which and why.
class OutputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Writes a file whole or not at all: what is written goes to a file beside it, which takes its place, and the
/// permissions of the file that stood there, at `commit`.
class OutputFile {
public:
    /// @throws OutputError  when the place is not one for a file, or cannot be written to
    explicit OutputFile(const std::filesystem::path& file);

    /// Without a `commit` nothing is left behind.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// For what is written bit by bit; whether it could be is found out at `commit`.
    std::ostream& stream() { return stream_; }

    /// @throws OutputError  when not everything could be written
    void write(const std::string& text);

    /// @throws OutputError  when not everything could be written
    void commit();

private:
    [[noreturn]] void fail(const std::string& reason) const;

    std::filesystem::path named_;  ///< as the user gave it
    std::filesystem::path file_;   ///< what is replaced
    std::filesystem::path partial_;
    std::ofstream stream_;
};

}  // namespace runner
