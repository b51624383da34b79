#include "Mutator.h"

namespace fuzzing {

std::string Mutator::Next()
{
    std::string text = Any();
    for (std::size_t change = 0, changes = 1 + Below(4); change < changes; ++change)
        Change(text);
    return text;
}

// Not std::uniform_int_distribution, whose numbers differ between libraries.
std::size_t Mutator::Below(std::size_t bound)
{
    return m_random() % bound;
}

std::string Mutator::PieceOf(const std::string& text)
{
    return text.substr(Below(text.size() + 1), Below(24));
}

void Mutator::Change(std::string& text)
{
    const std::size_t at = Below(text.size() + 1);
    switch (Below(5)) {
    case 0:
        text.erase(at, 1 + Below(6));
        break;
    case 1:
        text.insert(at, PieceOf(text));
        break;
    case 2:
        text.insert(at, PieceOf(Any()));
        break;
    case 3:
        text.insert(at, 1, static_cast<char>(Below(256)));
        break;
    default:
        if (at < text.size())
            text[at] = static_cast<char>(Below(2) ? ' ' + Below(95) : Below(256));
    }
}

}  // namespace fuzzing
