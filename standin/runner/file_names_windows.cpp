// Letter case makes no difference there.
#include "standin/runner/file_names.h"

#include <windows.h>

namespace standin {

bool isSameName(const std::filesystem::path& one, const std::filesystem::path& other)
{
    return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

}  // namespace standin
