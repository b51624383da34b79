// Extension libraries: AfxInitExtensionModule, AfxTermExtensionModule, CDynLinkLibrary.
#include <afxwin.h>

#include "Libraries.h"
#include "MessageCache.h"

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hMod)
{
    if (state.bInitialized)
        return TRUE;
    AFX_MODULE_STATE* lists = AfxGetModuleState();
    state.bInitialized = TRUE;
    state.hModule = hMod;
    state.hResource = hMod;
    // What static construction has entered since the lists were moved aside is the library's own.
    state.pFirstSharedClass = lists->m_classList;
    state.pFirstSharedFactory = lists->m_factoryList;
    lists->m_classList = lists->m_pClassInit;
    lists->m_factoryList = lists->m_pFactoryInit;
    lists->m_pClassInit = nullptr;
    lists->m_pFactoryInit = nullptr;
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
    : m_hModule(state.hModule), m_hResource(state.hResource), m_classList(state.pFirstSharedClass),
      m_factoryList(state.pFirstSharedFactory), m_bSystem(bSystem)
{
    Libraries::Instance().Add(*this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    Libraries::Instance().Remove(*this);
}
