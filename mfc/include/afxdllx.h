// Start-up of an extension library: included by exactly one of its sources, the one with DllMain.
//
// The classes of a library are entered in the class list by its static constructors. So that AfxInitExtensionModule can
// tell them from the application's, the list's head is moved aside before the first of them runs and put back there.
// MFC does that in RawDllMain, which Visual C++'s start-up code calls through _pRawDllMain before static construction.
// MinGW's start-up code has no such call and runs the constructors before DllMain; there a constructor of the highest
// priority open to programs does it. Objects that a library gives that same priority (101) may come before it.
#pragma once

#include <afxwin.h>

inline void AfxMoveListsAside() noexcept
{
    AFX_MODULE_STATE* state = AfxGetModuleState();
    state->m_pClassInit = state->m_classList;
    state->m_pFactoryInit = state->m_factoryList;
    state->m_classList = nullptr;
    state->m_factoryList = nullptr;
}

#ifdef _MSC_VER

extern "C" BOOL WINAPI RawDllMain(HINSTANCE, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH)
        AfxMoveListsAside();
    return TRUE;
}
extern "C" BOOL(WINAPI* const _pRawDllMain)(HINSTANCE, DWORD, LPVOID) = &RawDllMain;

#else

__attribute__((constructor(101))) static void AfxBeforeStaticConstructors()
{
    AfxMoveListsAside();
}

#endif
