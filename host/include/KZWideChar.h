// Operations on zero-terminated wide text that need no string object.
#pragma once

#include "KZHostApi.h"

class KZWideChar {
public:
    // Compares two texts code unit by code unit, case included; null counts as the empty text.
    // Returns 0 when they are equal, a negative or positive number when the first sorts before or after the second.
    [[nodiscard]] static KZ_API int Compare(const wchar_t* first, const wchar_t* second) noexcept;

    // The leading decimal integer of a text: leading blanks and one sign are allowed, the first other character ends
    // it. Null, empty and non-numeric text give 0; what does not fit into 32 bits gives the nearest bound.
    [[nodiscard]] static KZ_API int ToInteger(const wchar_t* text) noexcept;
};
