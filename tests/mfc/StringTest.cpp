#include <gtest/gtest.h>

#include <afxwin.h>

#include "MfcTestIds.h"

namespace {

TEST(String, TakesNullAsEmpty)
{
    EXPECT_TRUE(CString(nullptr).IsEmpty());
}

TEST(String, FormatsTextOfAnyLength)
{
    CString text;
    text.Format(L"%d %s", 42, std::wstring(2000, L'x').c_str());
    EXPECT_EQ(text.GetLength(), 2003);
    EXPECT_EQ(text.Find(L"42 x"), 0);
}

TEST(String, FindsTheFirstPlaceOfAText)
{
    const CString text(L"abcdef");
    EXPECT_EQ(text.Find(L"cd"), 2);
    EXPECT_EQ(text.Find(L"cd", 3), -1);
}

TEST(String, EndsAtTheFirstZeroOfItsBuffer)
{
    CString text;
    std::wcscpy(text.GetBuffer(100), L"short");
    text.ReleaseBuffer();
    EXPECT_EQ(text, L"short");
}

TEST(String, LoadsTextsOfOneModuleInOneLanguage)
{
    const HINSTANCE program = ::GetModuleHandleW(nullptr);
    CString text(L"before");
    EXPECT_FALSE(text.LoadString(program, IDS_GREETING, MAKELANGID(LANG_SPANISH, SUBLANG_SPANISH_MODERN)));
    EXPECT_FALSE(text.LoadString(program, IDS_GREETING + 1, MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US)));
    EXPECT_EQ(text, L"before");
    EXPECT_TRUE(text.LoadString(program, IDS_GREETING, MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US)));
    EXPECT_EQ(text, L"Good morning");
}

TEST(Rect, MeasuresMovesAndIntersects)
{
    CRect rect(CPoint(10, 20), CSize(30, 40));
    EXPECT_EQ(rect.Width(), 30);
    EXPECT_EQ(rect.Height(), 40);
    rect.OffsetRect(1, 2);
    EXPECT_TRUE(rect == CRect(11, 22, 41, 62));
    rect.DeflateRect(1, 2);
    EXPECT_TRUE(rect == CRect(12, 24, 40, 60));
    CRect common;
    EXPECT_FALSE(common.IntersectRect(&rect, CRect(100, 100, 110, 110)));
    EXPECT_TRUE(common.IsRectEmpty());
}

}  // namespace
