// The module's start when there is no memory for its place on the host's resource chain.
#include <afxdllx.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include "ImportPatch.h"
#include "SelectVarControls.h"

namespace {

using Allocate = void* (*)(std::size_t);

Allocate allocate = nullptr;
int refused = 0;

void* RefuseTheLibraryObject(std::size_t size)
{
    if (size != sizeof(CDynLinkLibrary))
        return allocate(size);
    ++refused;
    return nullptr;
}

TEST(ModuleStart, FailsCleanlyWithoutMemory)
{
    ASSERT_EQ(::GetModuleHandleW(L"KZUsrZEP.dll"), nullptr);
    {
        // The library's own imports do not stand before it is loaded; operator new is the run-time library's.
        const kztest::ImportPatch patch(::GetModuleHandleW(L"libstdc++-6.dll"), "malloc",
                                        reinterpret_cast<void*>(RefuseTheLibraryObject));
        allocate = reinterpret_cast<Allocate>(patch.Original());
        refused = 0;
        EXPECT_EQ(::LoadLibraryW(L"KZUsrZEP.dll"), nullptr);
        EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_DLL_INIT_FAILED));
        EXPECT_EQ(refused, 1);
    }
    EXPECT_EQ(::GetModuleHandleW(L"KZUsrZEP.dll"), nullptr);
    const HMODULE module = ::LoadLibraryW(L"KZUsrZEP.dll");
    ASSERT_NE(module, nullptr) << "what failed once can be loaded when there is memory again";
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(IDD_SELECTVAR), RT_DIALOG), module);
    ::FreeLibrary(module);
}

}  // namespace
