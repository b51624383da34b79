#include "FailingMemory.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr long None = std::numeric_limits<long>::max();

long firstFailing = None;
long lastFailing = None;
long count = 0;

void Fail(long first, long last) noexcept
{
    firstFailing = first > 0 ? first : None;
    lastFailing = last;
    count = 0;
}

}  // namespace

void FailAllocation(long number) noexcept
{
    Fail(number, number);
}

void FailAllocationsFrom(long number) noexcept
{
    Fail(number, None);
}

long CountAllocations() noexcept
{
    return count;
}

void* FailingMalloc(std::size_t size) noexcept
{
    ++count;
    return count >= firstFailing && count <= lastFailing ? nullptr : std::malloc(size ? size : 1);
}

void* operator new(std::size_t size)
{
    if (void* memory = FailingMalloc(size))
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
