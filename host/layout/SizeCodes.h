// What the named sizes of KZLayout.h mean, in dialog units.
#pragma once

#include "KZLayout.h"

enum class LayoutAxis { Horizontal, Vertical };

[[nodiscard]] constexpr LayoutAxis Across(LayoutAxis axis) noexcept
{
    return axis == LayoutAxis::Horizontal ? LayoutAxis::Vertical : LayoutAxis::Horizontal;
}

// A length or size code for each axis.
struct PerAxis {
    int x = 0;
    int y = 0;

    [[nodiscard]] int& operator[](LayoutAxis axis) noexcept { return axis == LayoutAxis::Horizontal ? x : y; }
    [[nodiscard]] int operator[](LayoutAxis axis) const noexcept { return axis == LayoutAxis::Horizontal ? x : y; }
};

// Sizes above the named ones and below 0 are pixels.
[[nodiscard]] constexpr bool IsPixelSize(int size) noexcept
{
    return size < 0 && size > KZSizeStandard;
}

// The length of a gap or border, in dialog units; shares and unknown codes count as none and standard.
[[nodiscard]] int GapUnits(int code, LayoutAxis axis) noexcept;

// The height of a line of that name in dialog units; 0 for a code that names no line.
[[nodiscard]] int LineUnits(int code) noexcept;

// Heights and paddings of controls in dialog units, from the Windows interface guidelines' table for dialogs.
namespace ControlUnits {
inline constexpr int TextLine = 8;
inline constexpr int CheckLine = 10;
inline constexpr int EditLine = 13;  // as high as a closed drop list of the same font
inline constexpr int ButtonHeight = 14;
inline constexpr int ButtonWidth = 50;
inline constexpr int ButtonPadding = 4;  // on each side of a button's text or picture
inline constexpr int CheckGlyph = 12;    // the box and the gap between it and its text
inline constexpr int FieldWidth = 60;    // an edit or drop list of natural width
inline constexpr int SmallestField = 20;
inline constexpr int BoxCaption = 9;  // from a group box's top edge to below its caption
inline constexpr int BoxEdge = 2;     // left and right of a group box's inside
inline constexpr int BoxFoot = 1;     // below it
}  // namespace ControlUnits
