// Lets allocations of the program fail. Replaces the global operator new of the program that it is linked into.
#pragma once

#include <cstddef>

// Counts allocations from now on; the one with that number, from 1, finds no memory, those behind it do. 0 lets all
// succeed.
void FailAllocation(long number) noexcept;
// The same, and no later one finds memory either.
void FailAllocationsFrom(long number) noexcept;
// How many were asked for since.
[[nodiscard]] long CountAllocations() noexcept;

// malloc that counts and fails with them.
[[nodiscard]] void* FailingMalloc(std::size_t size) noexcept;
