// The resource chain.
#include <afxwin.h>

#include "Libraries.h"

namespace {

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

HINSTANCE AFXAPI AfxGetInstanceHandle() noexcept
{
    return ::GetModuleHandleW(nullptr);
}

HINSTANCE AFXAPI AfxGetResourceHandle() noexcept
{
    return AfxGetInstanceHandle();
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType) noexcept
{
    const HINSTANCE found =
        FindModule([&](HINSTANCE module) { return ::FindResourceW(module, lpszName, lpszType) != nullptr; });
    return found ? found : AfxGetResourceHandle();
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
{
    // A string table comes in blocks of 16 texts, each with its length before it, absent ones with length 0.
    constexpr UINT textsPerBlock = 16;
    const HRSRC block = ::FindResourceExW(hInstance, reinterpret_cast<LPCWSTR>(RT_STRING),
                                          MAKEINTRESOURCEW(nID / textsPerBlock + 1), wLanguageID);
    const HGLOBAL loaded = block ? ::LoadResource(hInstance, block) : nullptr;
    const auto* text = static_cast<const wchar_t*>(loaded ? ::LockResource(loaded) : nullptr);
    if (!text)
        return FALSE;
    for (UINT skipped = 0; skipped < nID % textsPerBlock; ++skipped)
        text += 1 + *text;
    if (*text == 0)
        return FALSE;
    m_text.assign(text + 1, *text);
    return TRUE;
}
