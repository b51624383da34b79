#include "SizeCodes.h"

namespace {

struct NamedGap {
    int code;
    int horizontal;
    int vertical;
};

constexpr NamedGap Gaps[] = {
    {KZSizeStandard, 5, 4},    {KZSizeTextLine, 3, 2}, {KZSizeCentringGap, 70, 8},
    {KZSizeCheckLine, 12, 10}, {KZSizeEditLine, 3, 2},
};

struct NamedLine {
    int code;
    int height;
};

constexpr NamedLine Lines[] = {
    {KZSizeTextLine, ControlUnits::TextLine},
    {KZSizeCheckLine, ControlUnits::CheckLine},
    {KZSizeEditLine, ControlUnits::EditLine},
};

}  // namespace

int GapUnits(int code, LayoutAxis axis) noexcept
{
    if (code >= 0)
        return 0;
    const NamedGap* found = &Gaps[0];
    for (const NamedGap& gap : Gaps) {
        if (gap.code == code)
            found = &gap;
    }
    return axis == LayoutAxis::Horizontal ? found->horizontal : found->vertical;
}

int LineUnits(int code) noexcept
{
    for (const NamedLine& line : Lines) {
        if (line.code == code)
            return line.height;
    }
    return 0;
}
