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
