// Tool tips on texts of lists that are cut.
#include "CutTextTips.h"

#include <afxcmn.h>

#include <gtest/gtest.h>

#include <string>

namespace {

const std::wstring Long = L"A text that is a good deal longer than the column that shows it";

class ListTips : public testing::Test {
protected:
    ListTips()
    {
        m_frame.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr);
        m_frame.ShowWindow(SW_SHOWNOACTIVATE);
    }
    ~ListTips() override { m_frame.DestroyWindow(); }

    HWND MakeList(const wchar_t* className, DWORD style)
    {
        return ::CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 300, 200, m_frame.m_hWnd,
                                 nullptr, nullptr, nullptr);
    }
    HWND MakeListView()
    {
        const HWND list = MakeList(WC_LISTVIEWW, LVS_REPORT);
        for (int column = 0; column < 2; ++column) {
            LVCOLUMNW wanted{};
            wanted.mask = LVCF_TEXT | LVCF_WIDTH;
            wanted.pszText = const_cast<LPWSTR>(L"Column");
            wanted.cx = 100;
            ::SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&wanted));
        }
        for (int row = 0; row < 2; ++row) {
            LVITEMW item{};
            item.mask = LVIF_TEXT;
            item.iItem = row;
            item.pszText = const_cast<LPWSTR>(row == 0 ? L"short" : Long.c_str());
            ::SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
            item.iSubItem = 1;
            item.pszText = const_cast<LPWSTR>(row == 0 ? Long.c_str() : L"short");
            ::SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        }
        return list;
    }
    static void MoveMouse(HWND list, POINT point)
    {
        ::SendMessageW(list, WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
    }
    static void MoveMouseOver(HWND list, int row, int column)
    {
        RECT place{LVIR_BOUNDS, column, 0, 0};
        ::SendMessageW(list, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
        MoveMouse(list, {place.left + 5, (place.top + place.bottom) / 2});
    }
    [[nodiscard]] std::wstring Tip() const
    {
        wchar_t text[256]{};
        TTTOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V1_SIZE;
        tool.lpszText = text;
        ::SendMessageW(m_tips.Window(), TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool));
        return text;
    }

    CWnd m_frame;
    CutTextTips m_tips;
};

TEST_F(ListTips, ShowTheWholeTextOfACutCell)
{
    const HWND list = MakeListView();
    m_tips.Attach(list);
    MoveMouseOver(list, 0, 1);
    EXPECT_EQ(Tip(), Long);
    MoveMouseOver(list, 1, 0);
    EXPECT_EQ(Tip(), Long);
}

TEST_F(ListTips, SayNothingWhereTheTextIsSeen)
{
    const HWND list = MakeListView();
    m_tips.Attach(list);
    EXPECT_FALSE(m_tips.Window());
    MoveMouseOver(list, 0, 0);
    EXPECT_TRUE(m_tips.Window());
    EXPECT_EQ(Tip(), L"");
    MoveMouseOver(list, 0, 1);
    MoveMouseOver(list, 1, 1);
    EXPECT_EQ(Tip(), L"");
    MoveMouseOver(list, 0, 1);
    MoveMouse(list, {250, 190});
    EXPECT_EQ(Tip(), L"") << "below the last row";
}

TEST_F(ListTips, ShowTheWholeRowOfAListBox)
{
    const HWND list = MakeList(L"ListBox", LBS_NOINTEGRALHEIGHT);
    for (const std::wstring& text : {std::wstring(L"short"), Long + Long})
        ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    m_tips.Attach(list);
    const auto height = static_cast<int>(::SendMessageW(list, LB_GETITEMHEIGHT, 0, 0));
    MoveMouse(list, {5, height + height / 2});
    EXPECT_EQ(Tip(), Long + Long);
    MoveMouse(list, {5, height / 2});
    EXPECT_EQ(Tip(), L"");
}

TEST_F(ListTips, EndWithTheList)
{
    const HWND list = MakeListView();
    m_tips.Attach(list);
    MoveMouseOver(list, 0, 1);
    const HWND tips = m_tips.Window();
    ::DestroyWindow(list);
    EXPECT_FALSE(::IsWindow(tips));
    EXPECT_FALSE(m_tips.Window());
}

TEST_F(ListTips, LeaveTheListAsItWas)
{
    const HWND list = MakeListView();
    const LONG_PTR before = ::GetWindowLongPtrW(list, GWLP_WNDPROC);
    {
        CutTextTips others;
        others.Attach(list);
        EXPECT_NE(::GetWindowLongPtrW(list, GWLP_WNDPROC), before);
    }
    EXPECT_EQ(::GetWindowLongPtrW(list, GWLP_WNDPROC), before);
}

}  // namespace
