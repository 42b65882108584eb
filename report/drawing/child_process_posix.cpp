#include "report/drawing/child_process.h"

#include "report/plots/plot_error.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <optional>
#include <system_error>

namespace report {

namespace {

[[noreturn]] void fail(const std::string& program, int error)
{
    throw PlotError(program + (error == ENOENT ? " is not installed"
                                               : " cannot be run: " + std::generic_category().message(error)));
}

/// A descriptor that is closed with its owner.
class Descriptor {
public:
    explicit Descriptor(int number)
        : number_(number)
    {
    }
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }

    void close()
    {
        if (number_ >= 0) {
            ::close(number_);
            number_ = -1;
        }
    }

private:
    int number_;
};

struct CloseFile {
    void operator()(std::FILE* file) const { (void)std::fclose(file); }
};

/// A file without a name, gone when it is closed.
using NamelessFile = std::unique_ptr<std::FILE, CloseFile>;

bool fill(const NamelessFile& file, const std::string& text)
{
    const bool written = std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
    const bool flushed = std::fflush(file.get()) == 0;
    std::rewind(file.get());
    return written && flushed;
}

/// Which descriptors become the three standard streams of a new process.
class Streams {
public:
    Streams(int input, int output, int errors)
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_adddup2(&actions_, input, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, errors, STDERR_FILENO);
    }
    ~Streams() { posix_spawn_file_actions_destroy(&actions_); }
    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;

    const posix_spawn_file_actions_t* actions() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

/// A started process, waited for by its owner.
class Process {
public:
    Process(std::vector<std::string> command, const Streams& streams)
    {
        std::vector<char*> words;
        words.reserve(command.size() + 1);
        for (std::string& word : command) {
            words.push_back(word.data());
        }
        words.push_back(nullptr);
        const int error = posix_spawnp(&id_, words[0], streams.actions(), nullptr, words.data(), environ);
        if (error != 0) {
            fail(command[0], error);
        }
    }
    ~Process()
    {
        while (waitpid(id_, nullptr, 0) == -1 && errno == EINTR) {}
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

private:
    pid_t id_ = 0;
};

void readToEnd(int descriptor, const std::function<void(std::string_view)>& take)
{
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t count = read(descriptor, buffer.data(), buffer.size());
        if (count > 0) {
            take({buffer.data(), static_cast<std::size_t>(count)});
        } else if (count == 0 || errno != EINTR) {
            return;
        }
    }
}

}  // namespace

std::string runProgram(const std::vector<std::string>& command, const std::string& input,
                       const std::function<void(std::string_view)>& takeOutput)
{
    // Input and errors are files, so that one pipe is left and neither side ever waits for the other.
    const NamelessFile itsInput(std::tmpfile());
    const NamelessFile errors(std::tmpfile());
    std::array<int, 2> pipeEnds{};
    if (!itsInput || !errors || !fill(itsInput, input) || pipe2(pipeEnds.data(), O_CLOEXEC) != 0) {
        fail(command[0], errno);
    }
    std::optional<Process> process;  // waited for after its pipe is closed, so that it ends when nobody reads on
    const Descriptor output(pipeEnds[0]);
    Descriptor itsOutput(pipeEnds[1]);
    process.emplace(command, Streams(fileno(itsInput.get()), itsOutput.number(), fileno(errors.get())));
    itsOutput.close();
    readToEnd(output.number(), takeOutput);
    process.reset();
    std::rewind(errors.get());
    std::string complaints;
    readToEnd(fileno(errors.get()), [&](std::string_view piece) { complaints += piece; });
    return complaints;
}

}  // namespace report
