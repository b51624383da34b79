#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "Controls.h"
#include "TestDialog.h"

namespace {

class ListeningEdit : public CEdit {
public:
    std::vector<UINT> heard;
    bool prepared = false;
    bool ended = false;

protected:
    void PreSubclassWindow() override { prepared = m_hWnd != nullptr; }
    void PostNcDestroy() override { ended = true; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        heard.push_back(message);
        return CEdit::WindowProc(message, wParam, lParam);
    }
};

bool Heard(const ListeningEdit& edit, UINT message)
{
    return std::find(edit.heard.begin(), edit.heard.end(), message) != edit.heard.end();
}

TEST(Subclassing, RoutesMessagesThroughTheObjectAndOnToTheControl)
{
    TestDialog dialog;
    dialog.Open();
    ListeningEdit edit;
    ASSERT_TRUE(edit.SubclassDlgItem(IDC_EDIT, &dialog));
    EXPECT_TRUE(edit.prepared);
    edit.SetWindowText(L"routed");
    EXPECT_TRUE(Heard(edit, WM_SETTEXT));
    EXPECT_EQ(kztest::TextOf(dialog.m_hWnd, IDC_EDIT), L"routed");
}

TEST(Subclassing, ForgetsTheWindowWhenItIsDestroyed)
{
    TestDialog dialog;
    dialog.Open();
    ListeningEdit edit;
    ASSERT_TRUE(edit.SubclassDlgItem(IDC_EDIT, &dialog));
    dialog.DestroyWindow();
    EXPECT_EQ(edit.m_hWnd, nullptr);
    EXPECT_TRUE(edit.ended);
    EXPECT_EQ(edit.heard.back(), static_cast<UINT>(WM_NCDESTROY));
}

TEST(Subclassing, OfAMissingControlFails)
{
    TestDialog dialog;
    dialog.Open();
    CEdit edit;
    EXPECT_FALSE(edit.SubclassDlgItem(9999, &dialog));
}

TEST(Creation, RoutesTheFirstMessageAlready)
{
    TestDialog dialog;
    dialog.Open();
    ListeningEdit edit;
    ASSERT_TRUE(edit.Create(L"EDIT", L"", WS_VISIBLE, CRect(0, 0, 50, 20), &dialog, 777));
    EXPECT_EQ(edit.heard.front(), static_cast<UINT>(WM_NCCREATE));
    EXPECT_EQ(edit.GetDlgCtrlID(), 777);
}

TEST(Creation, OfAnUnknownClassFailsAndTheNextWindowIsNotHooked)
{
    CWnd window;
    EXPECT_FALSE(window.CreateEx(0, L"No such class", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_EQ(window.m_hWnd, nullptr);
    const HWND other = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(other), nullptr);
    ::DestroyWindow(other);
}

TEST(WindowClass, IsTheSameForTheSameArguments)
{
    const std::wstring first = AfxRegisterWndClass(CS_DBLCLKS);
    EXPECT_EQ(first, AfxRegisterWndClass(CS_DBLCLKS));
    EXPECT_NE(first, AfxRegisterWndClass(CS_HREDRAW));
}

}  // namespace
