#include "FakeAccessibility.h"

#include <gtest/gtest.h>

namespace kztest {
namespace {

FakeAccessibility* offered = nullptr;

HRESULT WINAPI Offer(REFCLSID, LPUNKNOWN, DWORD, REFIID, LPVOID* service)
{
    offered->AddRef();
    *service = offered;
    return S_OK;
}

HRESULT WINAPI OfferNothing(REFCLSID, LPUNKNOWN, DWORD, REFIID, LPVOID*)
{
    return REGDB_E_CLASSNOTREG;
}

HMODULE Program() noexcept
{
    return ::GetModuleHandleW(nullptr);
}

}  // namespace

FakeAccessibility::FakeAccessibility(HMODULE importer)
    : m_patch(importer ? importer : Program(), "CoCreateInstance", reinterpret_cast<void*>(Offer))
{
    offered = this;
}

HRESULT WINAPI FakeAccessibility::SetHwndPropStr(HWND window, DWORD object, DWORD child, MSAAPROPID, LPCWSTR text)
{
    EXPECT_EQ(object, static_cast<DWORD>(OBJID_CLIENT));
    EXPECT_EQ(child, static_cast<DWORD>(CHILDID_SELF));
    if (refusesNames)
        return E_NOTIMPL;
    names[window] = text;
    return S_OK;
}

HRESULT WINAPI FakeAccessibility::ClearHwndProps(HWND window, DWORD, DWORD, const MSAAPROPID*, int count)
{
    EXPECT_EQ(count, 1);
    EXPECT_EQ(names.erase(window), 1U) << "only what was given is taken back";
    return S_OK;
}

NoAccessibility::NoAccessibility() : m_patch(Program(), "CoCreateInstance", reinterpret_cast<void*>(OfferNothing)) {}

}  // namespace kztest
