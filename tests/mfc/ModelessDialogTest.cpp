#include <gtest/gtest.h>

#include <stdexcept>

#include "Controls.h"
#include "DialogLayout.h"
#include "GuiResources.h"
#include "MessageBoxes.h"
#include "TestDialog.h"

namespace {

TEST(ModelessDialog, IsCreatedByTemplateAndDestroyed)
{
    TestDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_CONTROLS));
    EXPECT_EQ(kztest::TextOf(dialog.m_hWnd), L"Controls");
    kztest::ExpectNothingClippedOrOverlapping(dialog.m_hWnd);
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_FALSE(dialog.DestroyWindow());
}

TEST(ModelessDialog, FailsWithoutItsTemplate)
{
    CDialog dialog;
    EXPECT_FALSE(dialog.Create(9999U));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModelessDialog, BecomesAChildOfItsParent)
{
    TestDialog parent;
    parent.Open();
    CDialog child;
    ASSERT_TRUE(child.Create(IDD_CHILD, &parent));
    EXPECT_EQ(child.GetParent(), &parent);
    parent.DestroyWindow();
    EXPECT_EQ(child.m_hWnd, nullptr);
}

TEST(ModelessDialog, MayDeleteItselfAtItsEnd)
{
    struct SelfDeleting : CDialog {
        explicit SelfDeleting(bool& flag) : deleted(flag) {}
        ~SelfDeleting() override { deleted = true; }
        void PostNcDestroy() override { delete this; }
        bool& deleted;
    };
    bool deleted = false;
    auto* dialog = new SelfDeleting(deleted);
    ASSERT_TRUE(dialog->Create(IDD_CONTROLS));
    dialog->DestroyWindow();
    EXPECT_TRUE(deleted);
}

TEST(ModelessDialog, IsNotMadeWhenInitialisationEndsIt)
{
    TestDialog dialog;
    dialog.initialise = [&] { dialog.EndDialog(1); };
    EXPECT_FALSE(dialog.Create(IDD_CONTROLS));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModelessDialog, IsNotMadeWhenInitialisationThrows)
{
    const kztest::MessageBoxes messages;
    TestDialog dialog;
    dialog.initialise = [] { throw std::runtime_error("no luck"); };
    EXPECT_FALSE(dialog.Create(IDD_CONTROLS));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(messages.Texts(), std::vector<std::wstring>{L"no luck"});
}

TEST(ModelessDialog, KeepsThePlaceThatItsTemplateFixes)
{
    const auto doNothing = [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; };
    const HWND bare = ::CreateDialogParamW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(IDD_PLACED), nullptr, doNothing, 0);
    CRect expected;
    ::GetWindowRect(bare, &expected);
    ::DestroyWindow(bare);
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLACED));
    CRect place;
    dialog.GetWindowRect(&place);
    EXPECT_TRUE(place == expected);
    dialog.DestroyWindow();
}

TEST(ModelessDialog, LeavesNothingBehind)
{
    const auto openAndClose = [] {
        TestDialog dialog;
        dialog.Open();
        dialog.ShowWindow(SW_SHOW);
        dialog.UpdateWindow();
    };
    openAndClose();
    AfxGetApp()->OnIdle(0);
    const kztest::GuiResources before = kztest::CountGuiResources();
    for (int run = 0; run < 20; ++run)
        openAndClose();
    AfxGetApp()->OnIdle(0);
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

}  // namespace
