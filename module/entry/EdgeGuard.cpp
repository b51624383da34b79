#include "EdgeGuard.h"

#include <array>
#include <cwchar>

#include "HostText.h"
#include "KZStringIds.h"

namespace zep {
namespace {

KZBasicString LoadIfPossible(unsigned textId) noexcept
{
    try {
        return HostText(textId);
    } catch (...) {
        TakeException();
        return {};
    }
}

// The host's sentence, or the English one when it has none.
const wchar_t* Sentence(const KZBasicString& hosts, const wchar_t* english) noexcept
{
    return hosts.IsEmpty() ? english : hosts.c_str();
}

}  // namespace

FailureReport::FailureReport(const CWnd* parent) noexcept
    : m_owner(parent ? parent->m_hWnd : nullptr), m_failed(LoadIfPossible(KZS_OPERATION_FAILED)),
      m_outOfMemory(LoadIfPossible(KZS_OUT_OF_MEMORY))
{
}

// Allocates nothing.
void FailureReport::Show(const CaughtException& failure) const noexcept
{
    const wchar_t* const sentence = failure.isOutOfMemory
                                        ? Sentence(m_outOfMemory, L"There is not enough memory for this operation.")
                                        : Sentence(m_failed, L"This operation could not be completed.");
    std::array<wchar_t, 500> text{};
    std::swprintf(text.data(), text.size(), L"%.250ls%ls%ls", sentence, failure.reason[0] ? L"\n\n" : L"",
                  failure.reason.data());
    ::MessageBoxW(m_owner ? m_owner : ::GetActiveWindow(), text.data(), AfxGetAppName(), MB_OK | MB_ICONERROR);
}

}  // namespace zep
