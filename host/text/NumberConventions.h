// How numbers are written: the user's conventions and the C library's.
#pragma once

#include <string>

struct NumberConventions {
    std::wstring decimalSeparator = L".";
    std::wstring groupSeparator;
    // Digits per group from the decimal separator leftwards, one character each, the last one repeated when it is
    // followed by L'0': L"30" makes 1,234,567 and L"320" 12,34,567. Empty: the user has no groups.
    std::wstring groupSizes;

    // The user's: Windows' regional settings; elsewhere what the environment says.
    [[nodiscard]] static NumberConventions OfUser();
};

// What wcstod takes as the decimal separator at this moment.
[[nodiscard]] wchar_t CLibraryDecimalSeparator() noexcept;
