// Device contexts, what is selected into them, and menus.
#include <gtest/gtest.h>

#include "TestDialog.h"

namespace {

// A memory context with a bitmap of 8 by 8 pixels.
class Drawing : public testing::Test {
protected:
    Drawing()
    {
        const CClientDC screen(nullptr);
        bitmap.Attach(::CreateCompatibleBitmap(screen, 8, 8));
        dc.CreateCompatibleDC(nullptr);
        before = dc.SelectObject(&bitmap);
    }
    ~Drawing() override { dc.SelectObject(before); }

    CBitmap bitmap;
    CDC dc;
    CBitmap* before = nullptr;
};

TEST_F(Drawing, FillsRectanglesInOneColour)
{
    const CRect left(0, 0, 4, 8);
    dc.FillSolidRect(&left, RGB(10, 20, 30));
    CBrush brush(RGB(200, 100, 50));
    const CRect right(4, 0, 8, 8);
    dc.FillRect(&right, &brush);
    EXPECT_EQ(::GetPixel(dc, 3, 7), static_cast<COLORREF>(RGB(10, 20, 30)));
    EXPECT_EQ(::GetPixel(dc, 4, 7), static_cast<COLORREF>(RGB(200, 100, 50)));
}

TEST_F(Drawing, CopiesFromAnotherContext)
{
    const CRect all(0, 0, 8, 8);
    dc.FillSolidRect(&all, RGB(1, 2, 3));
    const CClientDC screen(nullptr);
    CBitmap other;
    other.Attach(::CreateCompatibleBitmap(screen, 8, 8));
    CDC copy;
    ASSERT_TRUE(copy.CreateCompatibleDC(&dc));
    CBitmap* const empty = copy.SelectObject(&other);
    EXPECT_TRUE(copy.BitBlt(0, 0, 8, 8, &dc, 0, 0, SRCCOPY));
    EXPECT_EQ(::GetPixel(copy, 5, 5), static_cast<COLORREF>(RGB(1, 2, 3)));
    copy.SelectObject(empty);
}

TEST_F(Drawing, GivesWhatWasSelectedBefore)
{
    CPen pen(PS_SOLID, 1, RGB(9, 9, 9));
    CBrush brush(RGB(8, 8, 8));
    LOGFONTW description{};
    description.lfHeight = -30;
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    const int saved = dc.SaveDC();
    CPen* const oldPen = dc.SelectObject(&pen);
    CBrush* const oldBrush = dc.SelectObject(&brush);
    CFont* const oldFont = dc.SelectObject(&font);
    EXPECT_EQ(dc.SelectObject(oldPen), &pen);
    EXPECT_EQ(dc.SelectObject(oldBrush), &brush);
    EXPECT_EQ(dc.SelectObject(oldFont), &font);
    EXPECT_TRUE(dc.RestoreDC(saved));
}

TEST_F(Drawing, MeasuresTextInTheSelectedFont)
{
    const CSize small = dc.GetTextExtent(L"Wide", 4);
    LOGFONTW description{};
    description.lfHeight = -40;
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    CFont* const old = dc.SelectObject(&font);
    TEXTMETRICW metrics{};
    EXPECT_TRUE(dc.GetTextMetrics(&metrics));
    EXPECT_EQ(dc.GetTextExtent(L"Wide", 4).cy, metrics.tmHeight);
    EXPECT_GT(dc.GetTextExtent(L"Wide", 4).cx, small.cx);
    CRect needed(0, 0, 0, 0);
    dc.DrawText(L"Wide", 4, &needed, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(needed.Width(), dc.GetTextExtent(L"Wide", 4).cx);
    dc.SelectObject(old);
}

TEST_F(Drawing, KeepsColoursUntilTheNext)
{
    dc.SetTextColor(RGB(1, 1, 1));
    dc.SetBkColor(RGB(2, 2, 2));
    dc.SetBkMode(TRANSPARENT);
    EXPECT_EQ(dc.SetTextColor(RGB(0, 0, 0)), static_cast<COLORREF>(RGB(1, 1, 1)));
    EXPECT_EQ(dc.SetBkColor(RGB(0, 0, 0)), static_cast<COLORREF>(RGB(2, 2, 2)));
    EXPECT_EQ(dc.SetBkMode(OPAQUE), TRANSPARENT);
}

TEST(DeviceContext, TakesOneHandleAndGivesItBack)
{
    CDC dc;
    EXPECT_FALSE(dc.Attach(nullptr));
    EXPECT_FALSE(dc.DeleteDC()) << "it has none";
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    EXPECT_EQ(CDC::FromHandle(dc), &dc);
    const HDC other = ::CreateCompatibleDC(nullptr);
    EXPECT_FALSE(dc.Attach(other));
    EXPECT_EQ(CDC::FromHandle(other)->GetSafeHdc(), other);
    CDC::DeleteTempMap();
    EXPECT_TRUE(::DeleteDC(other)) << "a temporary object must not delete what it stands for";
    EXPECT_TRUE(dc.DeleteDC());
    EXPECT_EQ(dc.GetSafeHdc(), nullptr);
}

TEST(DeviceContext, OfAWindowThatIsNotThereThrows)
{
    CWnd window;
    window.m_hWnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7ffffff0));
    EXPECT_THROW(CClientDC{&window}, CResourceException*);
    window.m_hWnd = nullptr;
}

// A window that counts how often it is asked to paint, and does so as every window should.
class Painter : public CWnd {
public:
    int count = 0;
    CRect invalid;

protected:
    afx_msg void OnPaint()
    {
        const CPaintDC dc(this);
        ++count;
        invalid = dc.m_ps.rcPaint;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Painter, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

TEST(PaintContext, KnowsWhatIsInvalidAndMakesItValid)
{
    Painter window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, 0, 0, 60, 40, nullptr, nullptr));
    window.UpdateWindow();
    window.count = 0;
    const CRect part(5, 6, 20, 30);
    window.InvalidateRect(&part);
    window.UpdateWindow();
    EXPECT_EQ(window.count, 1);
    EXPECT_EQ(window.invalid, part);
    window.UpdateWindow();
    EXPECT_EQ(window.count, 1) << "nothing is invalid any more";
    window.DestroyWindow();
}

TEST(Bitmap, KnowsItsSizeOrIsNotLoaded)
{
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.LoadBitmap(4321)) << "no resource has that id";
    ASSERT_TRUE(bitmap.CreateBitmap(3, 5, 1, 1, nullptr));
    BITMAP description{};
    EXPECT_NE(bitmap.GetBitmap(&description), 0);
    EXPECT_EQ(description.bmWidth, 3);
    EXPECT_EQ(description.bmHeight, 5);
    EXPECT_EQ(CBitmap::FromHandle(bitmap), &bitmap);
}

TEST(Pen, IsFoundByItsHandle)
{
    CPen pen;
    ASSERT_TRUE(pen.CreatePen(PS_DOT, 1, RGB(1, 2, 3)));
    EXPECT_EQ(CPen::FromHandle(pen), &pen);
    EXPECT_EQ(CGdiObject::FromHandle(pen.GetSafeHandle()), &pen);
}

TEST(Menu, TakesItemsAndTellsThem)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreateMenu());
    CMenu sub;
    ASSERT_TRUE(sub.CreatePopupMenu());
    EXPECT_TRUE(sub.AppendMenu(MF_STRING, 11, L"Item"));
    sub.CheckMenuItem(11, MF_CHECKED);
    sub.EnableMenuItem(11, MF_GRAYED);
    EXPECT_EQ(sub.GetMenuState(11, MF_BYCOMMAND) & (MF_CHECKED | MF_GRAYED), static_cast<UINT>(MF_CHECKED | MF_GRAYED));
    const HMENU popup = sub.Detach();  // the menu bar owns it
    EXPECT_TRUE(menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup), L"Menu"));
    EXPECT_EQ(menu.GetMenuItemCount(), 1);
    ASSERT_NE(menu.GetSubMenu(0), nullptr);
    EXPECT_EQ(menu.GetSubMenu(0)->GetMenuItemID(0), 11U);
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(popup)) << "a temporary object must not destroy what it stands for";
}

TEST(Menu, IsDestroyedWithItsObject)
{
    HMENU handle = nullptr;
    {
        CMenu menu;
        EXPECT_FALSE(menu.LoadMenu(4321)) << "no resource has that id";
        EXPECT_FALSE(menu.DestroyMenu()) << "it has none";
        ASSERT_TRUE(menu.CreateMenu());
        handle = menu;
        EXPECT_EQ(CMenu::FromHandle(handle), &menu);
    }
    EXPECT_FALSE(::IsMenu(handle));
}

}  // namespace
