#include "FailingAllocation.h"

#include <cstdlib>
#include <new>

namespace {

long failing = 0;
long count = 0;

}  // namespace

void FailAllocation(long number) noexcept
{
    failing = number;
    count = 0;
}

long CountAllocations() noexcept
{
    return count;
}

void* CountedMalloc(std::size_t size) noexcept
{
    return ++count == failing ? nullptr : std::malloc(size ? size : 1);
}

void* operator new(std::size_t size)
{
    if (void* memory = CountedMalloc(size))
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
