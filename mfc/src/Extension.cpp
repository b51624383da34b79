// Extension libraries: AfxInitExtensionModule, AfxTermExtensionModule, CDynLinkLibrary.
#include <afxwin.h>

#include "Libraries.h"
#include "MessageCache.h"

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hMod)
{
    if (state.bInitialized)
        return TRUE;
    state.bInitialized = TRUE;
    state.hModule = hMod;
    state.hResource = hMod;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll)
{
    if (!state.bInitialized)
        return;
    Libraries::Instance().Destroy(state.hModule, bAll != FALSE);
    MessageCache::ForgetAll();
    state = {};
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem)
{
    Libraries::Instance().Add(*this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    Libraries::Instance().Remove(*this);
}
