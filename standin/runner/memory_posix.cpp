#include "standin/runner/memory.h"

#include <malloc.h>

namespace standin {

void returnLargeBlocks()
{
    constexpr int mebibyte = 1 << 20;
    mallopt(M_MMAP_THRESHOLD, mebibyte);
}

}  // namespace standin
