// Extension libraries and the resource chain. Part of afxwin.h.
//
// An extension library has a static AFX_EXTENSION_MODULE, passes it to AfxInitExtensionModule when it is attached and
// makes a CDynLinkLibrary of it, which puts its resources on the application's chain. When it is detached,
// AfxTermExtensionModule takes them off again. Its sources include afxdllx.h once.
//
// Difference from MFC: there is one module state, the application's; regular DLLs with a state of their own
// (AFX_MANAGE_STATE) do not exist. Classes are not created by name, so libraries have no lists of them.
#pragma once

#include <afx.h>

#include "afxcmdt_.h"

struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
};

class KZMFC_API CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    // bSystem: searched after all others.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    ~CDynLinkLibrary() override;  // off the chain

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL = nullptr;
};

// Returns FALSE when the library cannot be attached.
KZMFC_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hMod);
// Destroys the library's CDynLinkLibrary (bAll: every one) and forgets what is remembered of its message maps.
KZMFC_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

[[nodiscard]] KZMFC_API HINSTANCE AFXAPI AfxGetInstanceHandle() noexcept;
[[nodiscard]] KZMFC_API HINSTANCE AFXAPI AfxGetResourceHandle() noexcept;

// The module that holds a resource: the application's resource module, then extension libraries, the newest first, then
// those marked as system. The application's resource module when none has it.
[[nodiscard]] KZMFC_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType) noexcept;
