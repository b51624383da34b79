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

void AccessibleNames::Set(HWND window, const std::wstring& name)
{
    if (!window)
        return;
    m_names[window] = name;
    // A system that refuses one name refuses them all.
    if (m_service && FAILED(m_service->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                                      PROPID_ACC_NAME, name.c_str()))) {
        m_service->Release();
        m_service = nullptr;
    }
}

void AccessibleNames::Clear() noexcept
{
    for (const auto& [window, name] : m_names) {
        if (m_service)
            m_service->ClearHwndProps(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, &PROPID_ACC_NAME, 1);
    }
    m_names.clear();
}
