#include "AccessibleNames.h"

#include <gtest/gtest.h>

#include "FakeAccessibility.h"

namespace {

HWND SomeWindow()
{
    return ::GetDesktopWindow();
}

TEST(AccessibleNames, AreGivenToWindows)
{
    kztest::FakeAccessibility service;
    AccessibleNames names;
    names.Set(SomeWindow(), L"Nominal");
    EXPECT_EQ(service.names[SomeWindow()], L"Nominal");
}

TEST(AccessibleNames, AreTakenBackWhenTheWindowsGo)
{
    kztest::FakeAccessibility service;
    AccessibleNames names;
    names.Set(SomeWindow(), L"Nominal");
    names.Clear();
    EXPECT_TRUE(service.names.empty());
    names.Clear();
}

TEST(AccessibleNames, LeaveNothingBehind)
{
    kztest::FakeAccessibility service;
    {
        AccessibleNames names;
        EXPECT_EQ(service.references, 1);
        names.Set(SomeWindow(), L"Nominal");
    }
    EXPECT_TRUE(service.names.empty());
    EXPECT_EQ(service.references, 0);
}

TEST(AccessibleNames, TakeBackNoNameThatWasRefused)
{
    kztest::FakeAccessibility service;
    service.refusesNames = true;
    AccessibleNames names;
    names.Set(SomeWindow(), L"Nominal");
    names.Clear();
    EXPECT_TRUE(service.names.empty());
}

TEST(AccessibleNames, PassOverAWindowThatIsNotThere)
{
    kztest::FakeAccessibility service;
    AccessibleNames names;
    names.Set(nullptr, L"Nominal");
    EXPECT_TRUE(service.names.empty());
}

TEST(AccessibleNames, AreLeftOutWhereTheSystemHasNoService)
{
    kztest::NoAccessibility system;
    AccessibleNames names;
    names.Set(SomeWindow(), L"Nominal");
    names.Clear();
}

// The thread of another program part may have chosen the other model, which must not be undone.
TEST(AccessibleNames, LeaveTheThreadsOwnModelAlone)
{
    ASSERT_EQ(::CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
    {
        AccessibleNames names;
        names.Set(SomeWindow(), L"Nominal");
    }
    EXPECT_EQ(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), RPC_E_CHANGED_MODE);
    ::CoUninitialize();
}

}  // namespace
