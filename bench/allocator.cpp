#include "bench/allocator.h"

#include <malloc.h>

#include <limits>

namespace bench {

namespace {

constexpr int mebibyte = 1 << 20;

}  // namespace

void takeFreshMemory()
{
    mallopt(M_MMAP_THRESHOLD, mebibyte / 4);
    mallopt(M_TRIM_THRESHOLD, mebibyte);
    malloc_trim(0);
}

void keepMemory()
{
    mallopt(M_MMAP_THRESHOLD, 32 * mebibyte);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

}  // namespace bench
