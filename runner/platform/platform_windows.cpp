#include "runner/platform/platform.h"

#include "text/wide_text_windows.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <memory>

namespace runner {

std::vector<std::string> argumentsOf(int /*argc*/, char** /*argv*/)
{
    // The narrow arguments are in the system's code page, in which not every name can be written.
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&LocalFree)> words(CommandLineToArgvW(GetCommandLineW(), &count),
                                                                LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(text::utf8Text(words.get()[i]));
    }
    return arguments;
}

void prepareStandardStreams()
{
    // A stream that is missing has no descriptor here, and no file takes its place.
    (void)_setmode(_fileno(stdout), _O_BINARY);
    (void)_setmode(_fileno(stderr), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
}

void returnLargeBlocks()
{
    // The system's heap does so by itself.
}

bool isSameName(const std::filesystem::path& one, const std::filesystem::path& other)
{
    // Letter case makes no difference here.
    return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

}  // namespace runner
