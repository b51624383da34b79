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
    EXPECT_EQ(text.Left(4), L"42 x");
}

TEST(String, GivesPartsAndStaysInsideItself)
{
    const CString text(L"abcdef");
    EXPECT_EQ(text.Mid(2, 2), L"cd");
    EXPECT_EQ(text.Right(2), L"ef");
    EXPECT_EQ(text.Right(20), L"abcdef");
    EXPECT_EQ(text.Mid(4, 20), L"ef");
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

TEST(String, LoadsTextsOfTheProgramAndKeepsItselfWhenThereIsNone)
{
    CString text(L"before");
    EXPECT_FALSE(text.LoadString(IDS_GREETING + 1));  // the same block of the table, but no text
    EXPECT_FALSE(text.LoadString(60000));
    EXPECT_EQ(text, L"before");
    EXPECT_TRUE(text.LoadString(IDS_GREETING));
    EXPECT_EQ(text, L"Good morning");
}

TEST(LoadString, CutsAtTheBufferAndGivesTheLength)
{
    wchar_t text[5];
    EXPECT_EQ(AfxLoadString(IDS_GREETING, text, 5), 4);
    EXPECT_STREQ(text, L"Good");
    EXPECT_EQ(AfxLoadString(60000, text, 5), 0);
    EXPECT_STREQ(text, L"");
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
    EXPECT_TRUE(rect.PtInRect(CPoint(12, 24)));
    EXPECT_FALSE(rect.PtInRect(CPoint(40, 60)));
    CRect common;
    EXPECT_FALSE(common.IntersectRect(&rect, CRect(100, 100, 110, 110)));
    EXPECT_TRUE(common.IsRectEmpty());
}

}  // namespace
