#include "standin/runner/file_names.h"

namespace standin {

bool isSameName(const std::filesystem::path& one, const std::filesystem::path& other)
{
    return one == other;
}

}  // namespace standin
