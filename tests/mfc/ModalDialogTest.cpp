#include <gtest/gtest.h>

#include <stdexcept>

#include "Controls.h"
#include "MessageBoxes.h"
#include "ModalScript.h"
#include "TestDialog.h"

namespace {

using kztest::Click;
using kztest::ModalScript;
using kztest::WaitForDialog;

TEST(ModalDialog, EndsWithTheButtonThatWasPressed)
{
    for (const int button : {IDOK, IDCANCEL}) {
        TestDialog dialog;
        const ModalScript script([button] { Click(WaitForDialog(), button); });
        EXPECT_EQ(dialog.DoModal(), button);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
    }
}

TEST(ModalDialog, ClosesWithCancelByItsCloseBox)
{
    TestDialog dialog;
    const ModalScript script([] { ::PostMessageW(WaitForDialog(), WM_SYSCOMMAND, SC_CLOSE, 0); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ModalDialog, CanRunTwice)
{
    TestDialog dialog;
    for (int run = 0; run < 2; ++run) {
        const ModalScript script([] { Click(WaitForDialog(), IDOK); });
        EXPECT_EQ(dialog.DoModal(), IDOK);
    }
}

TEST(ModalDialog, ReturnsMinusOneWithoutItsTemplate)
{
    CDialog dialog(9999U);
    EXPECT_EQ(dialog.DoModal(), -1);
}

TEST(ModalDialog, GivesWhatEndDialogWasGivenDuringInitialisation)
{
    TestDialog dialog;
    dialog.initialise = [&] { dialog.EndDialog(55); };
    EXPECT_EQ(dialog.DoModal(), 55);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModalDialog, StaysOpenWhileDataExchangeRefuses)
{
    TestDialog dialog;
    bool refuse = true;
    dialog.exchange = [&](CDataExchange* exchange) {
        if (exchange->m_bSaveAndValidate && refuse)
            exchange->Fail();
    };
    const ModalScript script([&] {
        const HWND window = WaitForDialog();
        Click(window, IDOK);
        EXPECT_TRUE(::IsWindowVisible(window));
        refuse = false;
        Click(window, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(ModalDialog, DisablesItsOwnerAndEnablesItBeforeItGoes)
{
    TestDialog owner;
    owner.Open();
    owner.ShowWindow(SW_SHOW);
    class WatchingDialog : public TestDialog {
    public:
        using TestDialog::TestDialog;
        BOOL DestroyWindow() override
        {
            if (m_hWnd)
                ownerEnabledAtEnd = ::IsWindowEnabled(::GetWindow(m_hWnd, GW_OWNER));
            return TestDialog::DestroyWindow();
        }
        BOOL ownerEnabledAtEnd = FALSE;
    } dialog(&owner);
    const ModalScript script([&] {
        const HWND window = WaitForDialog({owner.m_hWnd});
        EXPECT_EQ(::GetWindow(window, GW_OWNER), owner.m_hWnd);
        EXPECT_FALSE(::IsWindowEnabled(owner.m_hWnd));
        Click(window, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(dialog.ownerEnabledAtEnd);
    EXPECT_TRUE(::IsWindowEnabled(owner.m_hWnd));
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
}

TEST(ModalDialog, TakesTheTopLevelWindowOfAChildAsOwner)
{
    TestDialog owner;
    owner.Open();
    owner.ShowWindow(SW_SHOW);
    CDialog child;
    ASSERT_TRUE(child.Create(IDD_CHILD, &owner));
    TestDialog dialog(&child);
    const ModalScript script([&] {
        const HWND window = WaitForDialog({owner.m_hWnd});
        EXPECT_EQ(::GetWindow(window, GW_OWNER), owner.m_hWnd);
        Click(window, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(ModalDialog, OpensAnotherAndGoesOnAfterIt)
{
    TestDialog outer;
    TestDialog inner(&outer);
    INT_PTR innerResult = 0;
    outer.pressed = [&] { innerResult = inner.DoModal(); };
    const ModalScript script([] {
        const HWND outerWindow = WaitForDialog();
        kztest::PostClick(outerWindow, IDC_BUTTON);
        const HWND innerWindow = WaitForDialog({outerWindow});
        Click(innerWindow, IDCANCEL);
        kztest::WaitUntilGone(innerWindow);
        EXPECT_TRUE(::IsWindowEnabled(outerWindow));
        Click(outerWindow, IDOK);
    });
    EXPECT_EQ(outer.DoModal(), IDOK);
    EXPECT_EQ(innerResult, IDCANCEL);
}

TEST(ModalDialog, IsWorkedByKeyboard)
{
    TestDialog dialog;
    const ModalScript script([] {
        const HWND window = WaitForDialog();
        EXPECT_TRUE(kztest::WaitUntil([&] { return kztest::FocusedId(window) == IDC_EDIT; }));
        kztest::PressKey(window, VK_TAB);
        EXPECT_TRUE(kztest::WaitUntil([&] { return kztest::FocusedId(window) == IDC_CHECK; }));
        kztest::PressKey(window, VK_RETURN);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(ModalDialog, IsCancelledByEscape)
{
    TestDialog dialog;
    const ModalScript script([] { kztest::PressKey(WaitForDialog(), VK_ESCAPE); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ModalDialog, OffersMessagesToPreTranslateMessageFirst)
{
    class KeyDialog : public TestDialog {
    public:
        BOOL PreTranslateMessage(MSG* message) override
        {
            if (message->message != WM_KEYDOWN || message->wParam != VK_F9)
                return TestDialog::PreTranslateMessage(message);
            EndDialog(99);
            return TRUE;
        }
    } dialog;
    const ModalScript script([] { kztest::PressKey(WaitForDialog(), VK_F9); });
    EXPECT_EQ(dialog.DoModal(), 99);
}

TEST(ModalDialog, IsCentredOverItsOwner)
{
    TestDialog owner;
    owner.Open();
    owner.SetWindowPos(nullptr, 200, 150, 600, 500, SWP_NOZORDER);
    owner.ShowWindow(SW_SHOW);
    TestDialog dialog(&owner);
    CRect place;
    const ModalScript script([&] {
        const HWND window = WaitForDialog({owner.m_hWnd});
        ::GetWindowRect(window, &place);
        Click(window, IDOK);
    });
    dialog.DoModal();
    EXPECT_NEAR(place.CenterPoint().x, 500, 1);
    EXPECT_NEAR(place.CenterPoint().y, 400, 1);
}

TEST(ModalDialog, EndsWithMinusOneWhenItsInitialisationThrows)
{
    const kztest::MessageBoxes collector;
    TestDialog owner;
    owner.Open();
    TestDialog dialog(&owner);
    dialog.initialise = [] { throw std::runtime_error("initialisation"); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(collector.Texts(), std::vector<std::wstring>{L"initialisation"});
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, EndsWithMinusOneWhenItsMessageLoopThrows)
{
    class ThrowingDialog : public TestDialog {
    public:
        using TestDialog::TestDialog;
        BOOL PreTranslateMessage(MSG* message) override
        {
            if (message->message == WM_KEYDOWN) {
                PostMessage(WM_COMMAND, IDC_BUTTON, reinterpret_cast<LPARAM>(Item(IDC_BUTTON)));
                throw std::runtime_error("key");
            }
            return TestDialog::PreTranslateMessage(message);
        }
    };
    const kztest::MessageBoxes collector;
    TestDialog owner;
    owner.Open();
    ThrowingDialog dialog(&owner);
    int presses = 0;
    dialog.pressed = [&] { ++presses; };
    const ModalScript script([] { kztest::PressKey(WaitForDialog(), VK_F9); });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(collector.Texts(), std::vector<std::wstring>{L"key"});
    EXPECT_EQ(presses, 0) << "it takes no command while its failure is read";
}

}  // namespace
