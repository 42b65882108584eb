#include "standin/runner/arguments.h"

#include "standin/wide_text_windows.h"

#include <windows.h>

#include <shellapi.h>

#include <memory>

namespace standin {

std::vector<std::string> argumentsOf(int /*argc*/, char** /*argv*/)
{
    // The narrow arguments are in the system's code page, in which not every name can be written.
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&LocalFree)> words(CommandLineToArgvW(GetCommandLineW(), &count),
                                                                LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(utf8Text(words.get()[i]));
    }
    return arguments;
}

}  // namespace standin
