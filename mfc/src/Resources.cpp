// The module state and the resource chain.
#include <afxwin.h>

#include <algorithm>

#include "Libraries.h"

namespace {

constinit AFX_MODULE_STATE moduleState = {};

// A block of a string table holds 16 texts, each with its length before it, absent ones with length 0.
constexpr UINT TextsPerBlock = 16;

LPCWSTR StringBlockName(UINT id) noexcept
{
    return MAKEINTRESOURCEW(id / TextsPerBlock + 1);
}

// The text's first character and length, read in place; length 0 when the module has no such text.
std::wstring_view TextOf(HINSTANCE module, UINT id) noexcept
{
    const HRSRC block = ::FindResourceW(module, StringBlockName(id), reinterpret_cast<LPCWSTR>(RT_STRING));
    const HGLOBAL loaded = block ? ::LoadResource(module, block) : nullptr;
    const auto* text = static_cast<const wchar_t*>(loaded ? ::LockResource(loaded) : nullptr);
    if (!text)
        return {};
    for (UINT skipped = 0; skipped < id % TextsPerBlock; ++skipped)
        text += 1 + static_cast<std::size_t>(*text);
    return {text + 1, static_cast<std::size_t>(*text)};
}

// The first module of the chain that has what is looked for, or null.
template <class Predicate>
HINSTANCE FindModule(Predicate has)
{
    if (const HINSTANCE application = AfxGetResourceHandle(); has(application))
        return application;
    for (const bool system : {false, true}) {
        const CDynLinkLibrary* library = Libraries::Instance().FindFirst([&](const CDynLinkLibrary& candidate) {
            return (candidate.m_bSystem != FALSE) == system && candidate.m_hResource && has(candidate.m_hResource);
        });
        if (library)
            return library->m_hResource;
    }
    return nullptr;
}

}  // namespace

AFX_MODULE_STATE* AFXAPI AfxGetModuleState() noexcept
{
    return &moduleState;
}

HINSTANCE AFXAPI AfxGetInstanceHandle() noexcept
{
    return moduleState.m_hCurrentInstanceHandle ? moduleState.m_hCurrentInstanceHandle : ::GetModuleHandleW(nullptr);
}

HINSTANCE AFXAPI AfxGetResourceHandle() noexcept
{
    return moduleState.m_hCurrentResourceHandle ? moduleState.m_hCurrentResourceHandle : AfxGetInstanceHandle();
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) noexcept
{
    moduleState.m_hCurrentResourceHandle = hInstResource;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType) noexcept
{
    const HINSTANCE found =
        FindModule([&](HINSTANCE module) { return ::FindResourceW(module, lpszName, lpszType) != nullptr; });
    return found ? found : AfxGetResourceHandle();
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID) noexcept
{
    return FindModule([&](HINSTANCE module) { return !TextOf(module, nID).empty(); });
}

int AFXAPI AfxLoadString(UINT nIDS, LPWSTR lpszBuf, UINT nMaxBuf) noexcept
{
    if (nMaxBuf == 0)
        return 0;
    const HINSTANCE module = AfxFindStringResourceHandle(nIDS);
    const std::wstring_view text = module ? TextOf(module, nIDS) : std::wstring_view{};
    const std::size_t length = std::min<std::size_t>(text.size(), nMaxBuf - 1);
    std::copy_n(text.data(), length, lpszBuf);
    lpszBuf[length] = L'\0';
    return static_cast<int>(length);
}

BOOL CString::LoadString(UINT nID)
{
    const HINSTANCE module = AfxFindStringResourceHandle(nID);
    if (!module)
        return FALSE;
    m_text = TextOf(module, nID);
    return TRUE;
}
