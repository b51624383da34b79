#include "project/Sealed.h"

#include <gtest/gtest.h>

#include <set>

namespace plant {

TEST(ContentHash, DiffersWithEachBitOfAText)
{
    const std::string text = "<configuration><devices/></configuration>\n";
    std::set<std::uint64_t> hashes{HashOf(text)};
    for (std::size_t bit = 0; bit < 8 * text.size(); ++bit) {
        std::string other = text;
        other[bit / 8] = static_cast<char>(other[bit / 8] ^ 1 << bit % 8);
        hashes.insert(HashOf(other));
    }
    EXPECT_EQ(hashes.size(), 8 * text.size() + 1);
}

TEST(ContentHash, DiffersWithEachPairOfBits)
{
    const std::string text(24, 'x');
    std::set<std::uint64_t> hashes;
    for (std::size_t first = 0; first < 8 * text.size(); ++first)
        for (std::size_t second = 0; second < first; ++second) {
            std::string other = text;
            other[first / 8] = static_cast<char>(other[first / 8] ^ 1 << first % 8);
            other[second / 8] = static_cast<char>(other[second / 8] ^ 1 << second % 8);
            hashes.insert(HashOf(other));
        }
    EXPECT_EQ(hashes.size(), 8 * text.size() * (8 * text.size() - 1) / 2);
}

TEST(ContentHash, DiffersWithTheNumberOfZerosAtTheEnd)
{
    std::set<std::uint64_t> hashes;
    for (std::size_t length = 0; length < 40; ++length)
        hashes.insert(HashOf(std::string(length, '\0')));
    EXPECT_EQ(hashes.size(), 40U);
}

TEST(ContentHash, DependsOnTheOrderOfTheWords)
{
    EXPECT_NE(HashOf("11111111222222223"), HashOf("22222222111111113"));
}

}  // namespace plant
