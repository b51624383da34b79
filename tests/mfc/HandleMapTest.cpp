#include <gtest/gtest.h>

#include <thread>

#include "TestApp.h"
#include "TestDialog.h"

namespace {

TEST(HandleMap, GivesTheAttachedObjectOfAWindow)
{
    TestDialog dialog;
    dialog.Open();
    EXPECT_EQ(CWnd::FromHandle(dialog.m_hWnd), &dialog);
    EXPECT_EQ(CWnd::FromHandlePermanent(dialog.m_hWnd), &dialog);
}

TEST(HandleMap, GivesOneTemporaryObjectPerWindowUntilIdleTime)
{
    TestDialog dialog;
    dialog.Open();
    CWnd* edit = dialog.GetDlgItem(IDC_EDIT);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->m_hWnd, dialog.Item(IDC_EDIT));
    EXPECT_EQ(dialog.GetDlgItem(IDC_EDIT), edit);
    EXPECT_EQ(CWnd::FromHandlePermanent(edit->m_hWnd), nullptr);
    const HWND window = edit->m_hWnd;
    kztest::App().OnIdle(0);
    EXPECT_TRUE(::IsWindow(window)) << "a temporary object must not destroy its window";
}

TEST(HandleMap, GivesAnObjectWithItsHandleAfterOneThatLetGo)
{
    TestDialog dialog;
    dialog.Open();
    const HWND edit = dialog.Item(IDC_EDIT);
    EXPECT_EQ(CWnd::FromHandle(edit)->Detach(), edit);
    EXPECT_EQ(CWnd::FromHandle(edit)->m_hWnd, edit);
}

TEST(HandleMap, GivesNullForNull)
{
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(nullptr), nullptr);
}

TEST(HandleMap, IsTheThreadsOwn)
{
    TestDialog dialog;
    dialog.Open();
    const CWnd* found = &dialog;
    std::thread([&] { found = CWnd::FromHandlePermanent(dialog.m_hWnd); }).join();
    EXPECT_EQ(found, nullptr);
}

TEST(HandleMap, RefusesASecondObjectForAWindowAndASecondWindowForAnObject)
{
    TestDialog dialog;
    dialog.Open();
    CEdit first;
    CEdit second;
    EXPECT_TRUE(first.Attach(dialog.Item(IDC_EDIT)));
    EXPECT_FALSE(second.Attach(dialog.Item(IDC_EDIT)));
    EXPECT_FALSE(first.Attach(dialog.Item(IDC_CHECK)));
    EXPECT_EQ(first.Detach(), dialog.Item(IDC_EDIT));
    EXPECT_EQ(first.m_hWnd, nullptr);
    EXPECT_TRUE(second.Attach(dialog.Item(IDC_EDIT)));
    second.Detach();
}

TEST(HandleMap, GivesTheAttachedObjectOfAFontOrATemporaryOne)
{
    CFont font;
    LOGFONTW description{};
    description.lfHeight = -11;
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    EXPECT_EQ(CFont::FromHandle(font), &font);
    const HFONT other = ::CreateFontIndirectW(&description);
    EXPECT_EQ(CFont::FromHandle(other)->m_hObject, other);
    kztest::App().OnIdle(0);
    EXPECT_TRUE(::DeleteObject(other)) << "a temporary object must not delete what it stands for";
}

TEST(GdiObject, DeletesWhatItHasWhenItGoes)
{
    HBRUSH handle = nullptr;
    {
        CBrush brush;
        ASSERT_TRUE(brush.CreateSolidBrush(RGB(1, 2, 3)));
        handle = brush;
        EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
        EXPECT_FALSE(brush.CreateSolidBrush(RGB(4, 5, 6))) << "it has one already";
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
}

TEST(Window, IsDestroyedWithItsObject)
{
    HWND window = nullptr;
    {
        TestDialog dialog;
        dialog.Open();
        window = dialog.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
}

}  // namespace
