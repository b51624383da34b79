#include "LimitedMemory.h"

#include <cstdlib>
#include <new>

namespace {

long allocationsLeft = -1;

}  // namespace

void LimitAllocations(long count) noexcept
{
    allocationsLeft = count;
}

void* MallocWithLimit(std::size_t size) noexcept
{
    if (allocationsLeft == 0)
        return nullptr;
    if (allocationsLeft > 0)
        --allocationsLeft;
    return std::malloc(size ? size : 1);
}

void* operator new(std::size_t size)
{
    if (void* memory = MallocWithLimit(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
