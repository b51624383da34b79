// Random choices that are the same for a seed on every machine and with every compiler.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

class Random {
public:
    explicit Random(std::uint64_t seed) noexcept : m_state(seed) {}

    // splitmix64
    std::uint64_t Next() noexcept
    {
        std::uint64_t value = m_state += 0x9E3779B97F4A7C15;
        value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
        value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
        return value ^ (value >> 31);
    }
    // 0 to count - 1; count is small beside 2^64, so the remainder is even enough.
    std::size_t Below(std::size_t count) noexcept { return static_cast<std::size_t>(Next() % count); }
    int Between(int least, int most) noexcept
    {
        return least + static_cast<int>(Below(static_cast<std::size_t>(most - least + 1)));
    }
    bool OneIn(std::size_t count) noexcept { return Below(count) == 0; }

    template <class Container>
    const auto& Pick(const Container& container) noexcept
    {
        return *std::next(std::begin(container), static_cast<std::ptrdiff_t>(Below(std::size(container))));
    }

private:
    std::uint64_t m_state;
};
