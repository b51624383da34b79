// Library start-up and end, as MFC extension libraries do it.
#include <afxdllx.h>
#include <afxwin.h>

#include "CaughtException.h"

static AFX_EXTENSION_MODULE ZepModule = {};

extern "C" BOOL APIENTRY DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(ZepModule, instance))
            return FALSE;  // GCOVR_EXCL_LINE: the subset of MFC that the tests use does not fail here
        try {
            // Puts the dialog templates on the host's resource chain; AfxTermExtensionModule destroys it.
            new CDynLinkLibrary(ZepModule);
        } catch (...) {
            TakeException();
            // Out of memory. Windows loads no library whose start fails, and the host says so.
            AfxTermExtensionModule(ZepModule, FALSE);
            return FALSE;
        }
    } else if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(ZepModule, FALSE);
    }
    return TRUE;
}
