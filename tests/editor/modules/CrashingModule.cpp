// A driver module whose options crash, in the way that the environment variable KZ_TEST_CRASH names.
#include <afxwin.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "KZDriverDeviceZEP.h"
#include "KZDriverServices.h"

namespace {

volatile std::intptr_t nowhere = 0;

bool Options(CWnd*, KZDriver*)
{
    const char* kind = std::getenv("KZ_TEST_CRASH");
    if (std::strcmp(kind, "exception") == 0)
        throw 7;
    if (std::strcmp(kind, "nowhere") == 0)
        reinterpret_cast<void (*)()>(nowhere)();
    *reinterpret_cast<volatile int*>(nowhere) = 1;
    return true;
}

bool Select(CWnd*, KZDriver*, std::list<KZBasicString>&, const KZVariableGroups&, int, const wchar_t*)
{
    return false;
}

bool Third(CWnd*, KZDriver*)
{
    return false;
}

CDialog* CreateChildOptions(CWnd*, KZDriver*)
{
    return nullptr;
}

}  // namespace

extern "C" __declspec(dllexport) bool InitializeUsrDriver_ZEP()
{
    return KZDriverServices::Add(RUNTIME_CLASS(KZDriverDeviceZEP), Options, Select, Third) &&
           KZDriverServices::AddCreateChildOptionsDlg(RUNTIME_CLASS(KZDriverDeviceZEP), CreateChildOptions);
}
