// Device contexts, what is selected into them, and menus.
#include <gtest/gtest.h>

#include "TestDialog.h"

namespace {

TEST(ClientContext, MeasuresTextInTheSelectedFont)
{
    CClientDC dc(nullptr);
    const CSize small = dc.GetTextExtent(L"Wide", 4);
    LOGFONTW description{};
    description.lfHeight = -40;
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    CFont* const old = dc.SelectObject(&font);
    TEXTMETRICW metrics{};
    ASSERT_TRUE(::GetTextMetricsW(dc, &metrics));
    EXPECT_EQ(dc.GetTextExtent(L"Wide", 4).cy, metrics.tmHeight);
    EXPECT_GT(dc.GetTextExtent(L"Wide", 4).cx, small.cx);
    EXPECT_EQ(dc.SelectObject(old), &font);
}

TEST(ClientContext, KeepsColoursUntilTheNext)
{
    CClientDC dc(nullptr);
    dc.SetTextColor(RGB(1, 1, 1));
    dc.SetBkColor(RGB(2, 2, 2));
    EXPECT_EQ(dc.SetTextColor(RGB(0, 0, 0)), static_cast<COLORREF>(RGB(1, 1, 1)));
    EXPECT_EQ(dc.SetBkColor(RGB(0, 0, 0)), static_cast<COLORREF>(RGB(2, 2, 2)));
}

TEST(ClientContext, OfAWindowThatIsNotThereThrows)
{
    CWnd window;
    window.m_hWnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7ffffff0));
    EXPECT_THROW(CClientDC{&window}, CResourceException*);
    window.m_hWnd = nullptr;
}

TEST(Bitmap, KnowsItsSize)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.Attach(::CreateBitmap(3, 5, 1, 1, nullptr)));
    BITMAP description{};
    EXPECT_NE(bitmap.GetBitmap(&description), 0);
    EXPECT_EQ(description.bmWidth, 3);
    EXPECT_EQ(description.bmHeight, 5);
}

TEST(Menu, EnablesItsItems)
{
    CMenu menu;
    ASSERT_TRUE(menu.Attach(::CreateMenu()));
    ASSERT_TRUE(::AppendMenuW(menu, MF_STRING, 11, L"Item"));
    EXPECT_EQ(menu.EnableMenuItem(11, MF_GRAYED), MF_ENABLED);
    EXPECT_EQ(::GetMenuState(menu, 11, MF_BYCOMMAND), static_cast<UINT>(MF_GRAYED));
    EXPECT_EQ(menu.EnableMenuItem(12, MF_GRAYED), -1) << "there is no such item";
}

TEST(Menu, IsDestroyedWithItsObject)
{
    HMENU handle = nullptr;
    {
        CMenu menu;
        EXPECT_FALSE(menu.Attach(nullptr));
        EXPECT_FALSE(menu.DestroyMenu()) << "it has none";
        ASSERT_TRUE(menu.Attach(::CreateMenu()));
        handle = menu;
        EXPECT_EQ(CMenu::FromHandle(handle), &menu);
    }
    EXPECT_FALSE(::IsMenu(handle));
}

TEST(Menu, OfAWindowIsTheWindowsOwn)
{
    TestDialog dialog;
    dialog.Open();
    CMenu menu;
    ASSERT_TRUE(menu.Attach(::CreateMenu()));
    EXPECT_TRUE(dialog.SetMenu(&menu));
    const HMENU handle = menu.Detach();
    EXPECT_EQ(dialog.GetMenu()->m_hMenu, handle);
    AfxGetApp()->OnIdle(0);
    EXPECT_TRUE(::IsMenu(handle)) << "a temporary object must not destroy what it stands for";
}

}  // namespace
