#include "report/drawing/child_process.h"

#include "report/plots/plot_error.h"
#include "text/wide_text_windows.h"

#include <windows.h>

#include <array>
#include <memory>
#include <optional>
#include <system_error>

namespace report {

namespace {

constexpr DWORD longestPath = 32768;

[[noreturn]] void fail(const std::string& program, DWORD error)
{
    throw PlotError(program + " cannot be run: " + text::systemMessage(error));
}

/// Where the program stands in the folders of PATH. The system itself would look into the current folder first, and so
/// run whatever lies beside the data.
std::wstring found(const std::string& program)
{
    std::wstring folders(GetEnvironmentVariableW(L"PATH", nullptr, 0), L'\0');
    folders.resize(GetEnvironmentVariableW(L"PATH", folders.data(), static_cast<DWORD>(folders.size())));
    std::wstring file(longestPath, L'\0');
    const DWORD length =
        SearchPathW(folders.c_str(), text::wideText(program).c_str(), L".exe", longestPath, file.data(), nullptr);
    if (length == 0 || length >= longestPath) {
        throw PlotError(program + " is not installed");
    }
    file.resize(length);
    return file;
}

struct CloseHandleOf {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const
    {
        if (handle != INVALID_HANDLE_VALUE) {
            CloseHandle(handle);
        }
    }
};
using Handle = std::unique_ptr<HANDLE, CloseHandleOf>;

/// A file that is gone when it is closed, for a child to inherit.
Handle temporaryFile()
{
    std::array<wchar_t, MAX_PATH + 1> folder{};
    std::array<wchar_t, MAX_PATH + 1> name{};
    if (GetTempPathW(MAX_PATH + 1, folder.data()) == 0 ||
        GetTempFileNameW(folder.data(), L"bld", 0, name.data()) == 0) {
        return Handle(INVALID_HANDLE_VALUE);
    }
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return Handle(CreateFileW(name.data(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                              &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE,
                              nullptr));
}

void rewindFile(const Handle& file)
{
    SetFilePointer(file.get(), 0, nullptr, FILE_BEGIN);
}

bool fill(const Handle& file, std::string_view text)
{
    DWORD written = 0;
    const bool whole = WriteFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr) != 0 &&
                       written == text.size();
    rewindFile(file);
    return whole;
}

/// With its line ends as LF.
void readToEnd(const Handle& file, const std::function<void(std::string_view)>& take)
{
    std::array<char, 65536> buffer{};
    DWORD count = 0;
    while (ReadFile(file.get(), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr) != 0 && count > 0) {
        std::string piece(buffer.data(), count);
        std::erase(piece, '\r');
        take(piece);
    }
}

/// A word in quotes, as the run-time library of the started program takes it apart: a backslash stands for itself
/// unless a quote follows.
std::wstring quoted(const std::wstring& word)
{
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"') {
            text.append(backslashes + 1, L'\\');
        }
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        text += c;
    }
    return text.append(backslashes, L'\\') + L'"';
}

std::wstring commandLine(const std::vector<std::string>& command)
{
    std::wstring line;
    for (const std::string& word : command) {
        line += (line.empty() ? L"" : L" ") + quoted(text::wideText(word));
    }
    return line;
}

/// A started process, waited for by its owner.
class Process {
public:
    Process(const std::vector<std::string>& command, HANDLE input, HANDLE output, HANDLE errors)
    {
        STARTUPINFOW start{};
        start.cb = sizeof(start);
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdInput = input;
        start.hStdOutput = output;
        start.hStdError = errors;
        std::wstring line = commandLine(command);
        if (CreateProcessW(found(command[0]).c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                           nullptr, &start, &information_) == 0) {
            fail(command[0], GetLastError());
        }
    }
    ~Process()
    {
        WaitForSingleObject(information_.hProcess, INFINITE);
        CloseHandle(information_.hThread);
        CloseHandle(information_.hProcess);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

private:
    PROCESS_INFORMATION information_{};
};

}  // namespace

std::string runProgram(const std::vector<std::string>& command, const std::string& input,
                       const std::function<void(std::string_view)>& takeOutput)
{
    // Input and errors are files, so that one pipe is left and neither side ever waits for the other.
    const Handle itsInput = temporaryFile();
    const Handle errors = temporaryFile();
    HANDLE readEnd = INVALID_HANDLE_VALUE;
    HANDLE writeEnd = INVALID_HANDLE_VALUE;
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    if (itsInput.get() == INVALID_HANDLE_VALUE || errors.get() == INVALID_HANDLE_VALUE || !fill(itsInput, input) ||
        CreatePipe(&readEnd, &writeEnd, &inherited, 0) == 0) {
        fail(command[0], GetLastError());
    }
    std::optional<Process> process;  // waited for after its pipe is closed, so that it ends when nobody reads on
    const Handle output(readEnd);
    Handle itsOutput(writeEnd);
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    process.emplace(command, itsInput.get(), itsOutput.get(), errors.get());
    itsOutput.reset();
    readToEnd(output, takeOutput);
    process.reset();
    rewindFile(errors);
    std::string complaints;
    readToEnd(errors, [&](std::string_view piece) { complaints += piece; });
    return complaints;
}

}  // namespace report
