// Mistakes on purpose: what the hardened build and the heap check must notice. tools/harden.sh runs them.
#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>

namespace {

// What the compiler cannot see through.
template <typename Value>
Value Opaque(Value value)
{
    static volatile Value kept;
    kept = value;
    return kept;
}

// Not inlined, so that the trap has this function's line.
[[gnu::noinline]] int Next(int number)
{
    return number + 1;
}

TEST(Deliberate, Overflow)
{
    EXPECT_NE(Next(Opaque(INT_MAX)), 0);
}

TEST(Deliberate, HeapOverrun)
{
    char* const block = static_cast<char*>(std::malloc(24));
    ASSERT_NE(block, nullptr);
    for (int at = 0; at < Opaque(25); ++at)
        static_cast<volatile char*>(block)[at] = 'x';
    std::free(block);
}

}  // namespace
