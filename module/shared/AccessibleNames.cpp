#include <initguid.h>

#include "AccessibleNames.h"

#include <objbase.h>
#include <oleacc.h>

AccessibleNames::AccessibleNames() noexcept : m_usesCom(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)))
{
    void* service = nullptr;
    if (SUCCEEDED(
            ::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices, &service)))
        m_service = static_cast<IAccPropServices*>(service);
}

AccessibleNames::~AccessibleNames()
{
    Clear();
    if (m_service)
        m_service->Release();
    if (m_usesCom)
        ::CoUninitialize();
}

void AccessibleNames::Set(HWND window, const KZBasicString& name)
{
    if (!m_service || !window)
        return;
    m_windows.push_back(window);
    if (FAILED(m_service->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                                         name.c_str())))
        m_windows.pop_back();
}

void AccessibleNames::Clear() noexcept
{
    for (const HWND window : m_windows)
        m_service->ClearHwndProps(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, &PROPID_ACC_NAME, 1);
    m_windows.clear();
}
