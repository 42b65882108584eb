#include "bench/allocator.h"

#include <malloc.h>

#include <limits>

namespace bench {

namespace {

constexpr int megabyte = 1 << 20;

}  // namespace

void takeFreshMemory()
{
    mallopt(M_MMAP_THRESHOLD, megabyte / 4);
    mallopt(M_TRIM_THRESHOLD, megabyte);
    malloc_trim(0);
}

void keepMemory()
{
    mallopt(M_MMAP_THRESHOLD, 32 * megabyte);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

}  // namespace bench
