#include "EdgeGuard.h"

#include <array>
#include <cwchar>

namespace zep {

// Out of memory is the likeliest reason to come here, so this allocates nothing and loads no text from the host.
void ReportFailure(const char* reason) noexcept
{
    std::array<wchar_t, 256> text{};
    std::swprintf(text.data(), text.size(), L"KZUsrZEP: %hs", reason ? reason : "unknown exception");
    ::MessageBoxW(::GetActiveWindow(), text.data(), L"KZUsrZEP", MB_OK | MB_ICONERROR);
}

}  // namespace zep
