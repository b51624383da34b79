// The pictures that the host provides in its image folder and that modules ask for by name.
#pragma once

#include <array>

inline constexpr std::array KZPictures{
    L"OK-16.png",         L"CANCEL-16.png",          L"ZEP-50.png",
    L"ZEP-var_power.png", L"SYSTEM-var_general.png", L"SYSTEM-var_armonic_current.png",
    L"SYSTEM-check.png",  L"SYSTEM-uncheck.png",
};
