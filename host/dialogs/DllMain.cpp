// Library start-up and end: an extension library, so that its dialog templates are on the program's resource chain.
#include <afxdllx.h>
#include <afxwin.h>

static AFX_EXTENSION_MODULE HostModule = {};

extern "C" BOOL APIENTRY DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(HostModule, instance))
            return FALSE;
        new CDynLinkLibrary(HostModule);  // AfxTermExtensionModule destroys it
    } else if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(HostModule, FALSE);
    }
    return TRUE;
}
