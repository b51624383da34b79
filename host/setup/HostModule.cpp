// Library start-up and end: an extension library, so that its dialog templates are on the program's resource chain.
#include "HostModule.h"

#include <afxdllx.h>

static AFX_EXTENSION_MODULE extensionModule = {};

extern "C" BOOL APIENTRY DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(extensionModule, instance))
            return FALSE;
        new CDynLinkLibrary(extensionModule);  // AfxTermExtensionModule destroys it
    } else if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(extensionModule, FALSE);
    }
    return TRUE;
}

HINSTANCE HostModule() noexcept
{
    return extensionModule.hModule;
}
