// Lets memory run out at a chosen moment. Replaces the global operator new of the program that it is linked into.
#pragma once

#include <cstddef>

// How many allocations succeed from now on; negative: all.
void LimitAllocations(long count) noexcept;

// malloc under the same limit; null beyond it.
[[nodiscard]] void* MallocWithLimit(std::size_t size) noexcept;
