#include "tests/faults/module_memory.h"

#include "standin/session/session.h"

#include <cstddef>
#include <cstdlib>
#include <new>
#include <utility>

namespace {

// Every block is preceded by a word that tells whether it is the module's.
struct alignas(std::max_align_t) Header {
    bool ofModule;
};

std::function<bool()> isGranted;  // none: nothing is watched
long live = 0;

bool moduleRuns()
{
    const standin::Session* session = standin::Session::running();
    return isGranted && session != nullptr && !session->monitor.insideHost();
}

void* allocate(std::size_t size)
{
    const bool ofModule = moduleRuns();
    if (ofModule && !isGranted()) {
        return nullptr;
    }
    auto* const header = static_cast<Header*>(std::malloc(sizeof(Header) + size));
    if (header == nullptr) {
        return nullptr;
    }
    header->ofModule = ofModule;
    live += ofModule ? 1 : 0;
    return header + 1;
}

void release(void* block) noexcept
{
    if (block == nullptr) {
        return;
    }
    Header* const header = static_cast<Header*>(block) - 1;
    live -= header->ofModule ? 1 : 0;
    std::free(header);
}

}  // namespace

void* operator new(std::size_t size)
{
    if (void* const block = allocate(size)) {
        return block;
    }
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t& /*unused*/) noexcept
{
    return allocate(size);
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void operator delete[](void* block) noexcept
{
    release(block);
}

void operator delete[](void* block, std::size_t /*size*/) noexcept
{
    release(block);
}

void operator delete(void* block) noexcept
{
    release(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept
{
    release(block);
}

namespace tests {

ModuleMemory::ModuleMemory(std::function<bool()> granted)
{
    live = 0;
    isGranted = std::move(granted);
}

ModuleMemory::~ModuleMemory()
{
    isGranted = nullptr;
}

long ModuleMemory::stillAllocated()
{
    return live;
}

}  // namespace tests
