#include "standin/runner/standard_streams.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>

namespace standin {

void prepareStandardStreams()
{
    // A stream that is missing has no descriptor here, and no file takes its place.
    (void)_setmode(_fileno(stdout), _O_BINARY);
    (void)_setmode(_fileno(stderr), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
}

}  // namespace standin
