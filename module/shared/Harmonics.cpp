#include "Harmonics.h"

namespace zep {

std::wstring HarmonicCode(int row)
{
    return L"ARM" + std::to_wstring(HarmonicOrder(row)) + L"A";
}

}  // namespace zep
