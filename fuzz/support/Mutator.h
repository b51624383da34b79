// Random damage to a corpus, the same for the same seed.
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace fuzzing {

class Mutator {
public:
    // The corpus must not be empty and must outlive the mutator.
    Mutator(unsigned seed, const std::vector<std::string>& corpus) : m_random(seed), m_corpus(corpus) {}

    // One of the corpus with a few changes.
    [[nodiscard]] std::string Next();

private:
    [[nodiscard]] std::size_t Below(std::size_t bound);
    [[nodiscard]] const std::string& Any() { return m_corpus[Below(m_corpus.size())]; }
    [[nodiscard]] std::string PieceOf(const std::string& text);
    void Change(std::string& text);

    std::mt19937 m_random;
    const std::vector<std::string>& m_corpus;
};

}  // namespace fuzzing
