// How far the endurance tests go: a short run beside the other tests, a long one for "./dev endure".
//
// KZ_ENDURE=1 asks for the long run, KZ_ENDURE_ROUNDS for another number of rounds, KZ_ENDURE_SEED for another seed. A
// run with the same seed and rounds does the same again.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>

namespace endurance {

[[nodiscard]] inline bool IsLong()
{
    const char* const value = std::getenv("KZ_ENDURE");
    return value && std::string(value) == "1";
}

[[nodiscard]] inline long Rounds(long shortRun, long longRun)
{
    const char* const value = std::getenv("KZ_ENDURE_ROUNDS");
    return value ? std::atol(value) : IsLong() ? longRun : shortRun;
}

[[nodiscard]] inline std::uint64_t Seed()
{
    const char* const value = std::getenv("KZ_ENDURE_SEED");
    return value ? std::strtoull(value, nullptr, 10) : 1;
}

}  // namespace endurance
