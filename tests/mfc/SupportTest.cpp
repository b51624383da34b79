// That the helpers of the tests find what they are for.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "Controls.h"
#include "DialogLayout.h"
#include "GuiResources.h"
#include "ModalScript.h"
#include "TestDialog.h"

namespace {

TestDialog* shown = nullptr;

class Support : public testing::Test {
protected:
    Support()
    {
        dialog.Open();
        shown = &dialog;
    }
    TestDialog dialog;
};

void RunFailingScript()
{
    TestDialog modal;
    const kztest::ModalScript script([] {
        kztest::WaitForDialog();
        throw std::runtime_error("the script's own reason");
    });
    modal.DoModal();
}

void RunIdleScript()
{
    TestDialog modal;
    const kztest::ModalScript script([] { kztest::WaitForDialog(); }, std::chrono::milliseconds(50));
    modal.DoModal();
}

TEST_F(Support, LayoutCheckFindsControlsOverEachOther)
{
    ::SetWindowPos(dialog.Item(IDC_BUTTON), nullptr, 10, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_NONFATAL_FAILURE(kztest::ExpectNothingClippedOrOverlapping(shown->m_hWnd), "lie over each other");
}

TEST_F(Support, LayoutCheckFindsControlsOutsideTheirDialog)
{
    ::SetWindowPos(dialog.Item(IDC_BUTTON), nullptr, -5, 400, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_NONFATAL_FAILURE(kztest::ExpectNothingClippedOrOverlapping(shown->m_hWnd), "leaves its dialog");
}

TEST_F(Support, LayoutCheckFindsTextsThatDoNotFit)
{
    ::SetWindowTextW(dialog.Item(IDC_BUTTON), L"far more text than such a button can show");
    EXPECT_NONFATAL_FAILURE(kztest::ExpectNothingClippedOrOverlapping(shown->m_hWnd), "far more text");
}

TEST_F(Support, LayoutCheckFindsItemsThatDoNotFit)
{
    ::SendMessageW(dialog.Item(IDC_COMBO), CB_ADDSTRING, 0,
                   reinterpret_cast<LPARAM>(L"far more text than such a box can show"));
    EXPECT_NONFATAL_FAILURE(kztest::ExpectNothingClippedOrOverlapping(shown->m_hWnd), "item of control 106");
}

TEST_F(Support, LayoutCheckFindsTabsThatDoNotFit)
{
    wchar_t text[] = L"far more text than such a tab can show";
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    ::SendMessageW(dialog.Item(IDC_TAB), TCM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_NONFATAL_FAILURE(kztest::ExpectNothingClippedOrOverlapping(shown->m_hWnd), "tabs of control 120");
}

TEST_F(Support, LayoutCheckFindsATitleThatDoesNotFit)
{
    ::SetWindowTextW(shown->m_hWnd, std::wstring(100, L'W').c_str());
    EXPECT_NONFATAL_FAILURE(kztest::ExpectNothingClippedOrOverlapping(shown->m_hWnd), "title");
}

TEST_F(Support, CountsSeeWindowsMenusAndGdiObjects)
{
    const kztest::GuiResources before = kztest::CountGuiResources();
    const HWND window = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    const HMENU menu = ::CreateMenu();
    const HBRUSH brush = ::CreateSolidBrush(RGB(1, 2, 3));
    const kztest::GuiResources with = kztest::CountGuiResources();
    EXPECT_EQ(with.windows, before.windows + 1);
    EXPECT_EQ(with.menus, before.menus + 1);
    EXPECT_EQ(with.gdiObjects, before.gdiObjects + 1);
    ::DestroyWindow(window);
    ::DestroyMenu(menu);
    ::DeleteObject(brush);
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

TEST(ModalScriptHelper, FailsTheTestWhenTheScriptThrowsAndClosesItsDialog)
{
    EXPECT_NONFATAL_FAILURE(RunFailingScript(), "the script's own reason");
}

TEST(ModalScriptHelper, FailsTheTestWhenTheDialogStaysOpen)
{
    EXPECT_NONFATAL_FAILURE(RunIdleScript(), "did not end");
}

TEST(WaitUntilHelper, GivesUpAtItsLimit)
{
    EXPECT_FALSE(kztest::WaitUntil([] { return false; }, std::chrono::milliseconds(20)));
    EXPECT_TRUE(kztest::WaitUntil([] { return true; }, std::chrono::milliseconds(0)));
}

}  // namespace
