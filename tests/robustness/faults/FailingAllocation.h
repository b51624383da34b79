// Lets one allocation of the program fail. Replaces the global operator new of the program that it is linked into.
#pragma once

#include <cstddef>

// Counts allocations from now on; the one with that number, from 1, finds no memory. 0 lets all succeed.
void FailAllocation(long number) noexcept;
// How many there were since.
[[nodiscard]] long CountAllocations() noexcept;

// malloc that counts and fails with them.
[[nodiscard]] void* CountedMalloc(std::size_t size) noexcept;
