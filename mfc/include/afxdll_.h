// Extension libraries and the resource chain. Part of afxwin.h.
//
// An extension library has a static AFX_EXTENSION_MODULE, passes it to AfxInitExtensionModule when it is attached and
// makes a CDynLinkLibrary of it, which puts its resources and classes on the application's chain. When it is detached,
// AfxTermExtensionModule takes them off again. Its sources include afxdllx.h once.
//
// Difference from MFC: there is one module state, the application's; regular DLLs with a state of their own
// (AFX_MANAGE_STATE) do not exist.
#pragma once

#include <afx.h>

#include "afxcmdt_.h"

class COleObjectFactory;  // does not exist in this subset; the lists of factories are always empty

struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
    CRuntimeClass* pFirstSharedClass;
    COleObjectFactory* pFirstSharedFactory;
};

// What static construction has entered so far, and what was moved aside before it began (see afxdllx.h).
struct AFX_MODULE_STATE {
    CRuntimeClass* m_pClassInit;
    COleObjectFactory* m_pFactoryInit;
    CRuntimeClass* m_classList;
    COleObjectFactory* m_factoryList;
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
};
KZMFC_API AFX_MODULE_STATE* AFXAPI AfxGetModuleState() noexcept;

class KZMFC_API CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    // bSystem: searched after all others.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    ~CDynLinkLibrary() override;  // off the chain

    HMODULE m_hModule;
    HMODULE m_hResource;
    CRuntimeClass* m_classList;
    COleObjectFactory* m_factoryList;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL = nullptr;
};

// Takes over the classes of the library's static construction. Returns FALSE when it cannot be attached.
KZMFC_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hMod);
// Destroys the library's CDynLinkLibrary (bAll: every one) and forgets what is remembered of its message maps.
KZMFC_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

[[nodiscard]] KZMFC_API HINSTANCE AFXAPI AfxGetInstanceHandle() noexcept;
[[nodiscard]] KZMFC_API HINSTANCE AFXAPI AfxGetResourceHandle() noexcept;
KZMFC_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) noexcept;

// The module that holds a resource: the application's resource module, then extension libraries, the newest first, then
// those marked as system. The application's resource module when none has it.
[[nodiscard]] KZMFC_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType) noexcept;
// The same for the text of a string table, which shares its resource with 15 others; null when none has it.
[[nodiscard]] KZMFC_API HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID) noexcept;
// Loads a text along the chain into a buffer of nMaxBuf characters. Returns its length, 0 when there is none.
KZMFC_API int AFXAPI AfxLoadString(UINT nIDS, LPWSTR lpszBuf, UINT nMaxBuf = 256) noexcept;
