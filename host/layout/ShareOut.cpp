#include "ShareOut.h"

#include <algorithm>
#include <cstdint>

namespace {

// Boundaries are rounded, not lengths: what one part loses the next one gains, and the sum is exact.
class Proportion {
public:
    Proportion(std::int64_t space, std::int64_t total) noexcept : m_space(space), m_total(total) {}

    int Take(int share) noexcept
    {
        m_taken += share;
        const std::int64_t end = m_space * m_taken / m_total;
        const auto length = static_cast<int>(end - m_end);
        m_end = end;
        return length;
    }

private:
    std::int64_t m_space;
    std::int64_t m_total;
    std::int64_t m_taken = 0;
    std::int64_t m_end = 0;
};

struct Remainder {
    std::int64_t space;
    std::int64_t shares = 0;
};

constexpr int Undecided = -1;

bool IsOpen(const LayoutPart& part) noexcept
{
    return part.share > 0 && part.length == Undecided;
}

Remainder OpenRemainder(std::span<const LayoutPart> parts, int space) noexcept
{
    Remainder rest{space};
    for (const LayoutPart& part : parts) {
        if (IsOpen(part))
            rest.shares += part.share;
        else
            rest.space -= part.length;
    }
    rest.space = std::max<std::int64_t>(rest.space, 0);
    return rest;
}

// Fixes the shares whose proportion is below their smallest length. Each one fixed leaves less for the others, so this
// is repeated until nothing more has to be fixed.
bool FixTooSmall(std::span<LayoutPart> parts, int space) noexcept
{
    const Remainder rest = OpenRemainder(parts, space);
    bool any = false;
    for (LayoutPart& part : parts) {
        if (IsOpen(part) && part.share * rest.space < part.smallest * rest.shares) {
            part.length = part.smallest;
            any = true;
        }
    }
    return any;
}

bool HasRoomForSmallest(std::span<const LayoutPart> parts, int space) noexcept
{
    std::int64_t needed = 0;
    for (const LayoutPart& part : parts)
        needed += part.share > 0 ? part.smallest : part.length;
    return needed <= space;
}

}  // namespace

void ShareOut(std::span<LayoutPart> parts, int space, SharePolicy policy) noexcept
{
    for (LayoutPart& part : parts) {
        if (part.share > 0)
            part.length = Undecided;
    }
    if (policy == SharePolicy::KeepSmallest && HasRoomForSmallest(parts, space)) {
        while (FixTooSmall(parts, space)) {
        }
    }
    const Remainder rest = OpenRemainder(parts, space);
    if (rest.shares == 0)
        return;
    Proportion proportion(rest.space, rest.shares);
    for (LayoutPart& part : parts) {
        if (IsOpen(part))
            part.length = proportion.Take(part.share);
    }
}

int SmallestSpace(std::span<const LayoutPart> parts, SharePolicy policy) noexcept
{
    std::int64_t fixed = 0;
    std::int64_t smallest = 0;
    std::int64_t shares = 0;
    for (const LayoutPart& part : parts) {
        (part.share > 0 ? smallest : fixed) += part.share > 0 ? part.smallest : part.length;
        shares += part.share;
    }
    if (policy == SharePolicy::Proportional) {
        smallest = 0;
        for (const LayoutPart& part : parts) {
            if (part.share > 0)
                smallest = std::max(smallest, (part.smallest * shares + part.share - 1) / part.share);
        }
    }
    return static_cast<int>(fixed + smallest);
}
