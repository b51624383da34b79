// How the length of a row or column is shared out among its parts. Plain arithmetic, without windows.
#pragma once

#include <span>

// One part of a row or column; lengths are pixels.
struct LayoutPart {
    int share = 0;     // 0: the part has a fixed length
    int smallest = 0;  // a share's smallest length
    int length = 0;    // given for a fixed part, found for a share
};

enum class SharePolicy {
    // Strictly in proportion, so that equal shares line up from row to row whatever the rows hold.
    Proportional,
    // In proportion, but no share gets less than its smallest length as long as the space allows.
    KeepSmallest,
};

// Sets the length of every share so that all parts together fill the space, to the pixel. A space that is too small
// leaves the fixed parts as they are and the shares with what is left, never less than nothing.
void ShareOut(std::span<LayoutPart> parts, int space, SharePolicy policy) noexcept;

// The length at which, shared out by that policy, every share has its smallest length.
[[nodiscard]] int SmallestSpace(std::span<const LayoutPart> parts, SharePolicy policy) noexcept;
