#include <gtest/gtest.h>

#include "TestDialog.h"

namespace {

class CommonControls : public testing::Test {
protected:
    CommonControls()
    {
        dialog.exchange = [this](CDataExchange* exchange) {
            DDX_Control(exchange, IDC_TAB, tab);
            DDX_Control(exchange, IDC_REPORT, report);
        };
        dialog.Open();
    }

    CTabCtrl tab;
    CListCtrl report;
    TestDialog dialog;
};

TEST_F(CommonControls, TabKeepsTextsImagesAndSelection)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 0));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.Attach(::CreateBitmap(16, 16, 1, 24, nullptr)));
    EXPECT_EQ(images.Add(&bitmap, RGB(255, 0, 255)), 0);
    EXPECT_EQ(images.GetImageCount(), 1);
    EXPECT_EQ(tab.SetImageList(&images), nullptr);
    EXPECT_EQ(tab.SetImageList(&images), &images) << "the one it had before";

    EXPECT_EQ(tab.InsertItem(0, L"First", 0), 0);
    EXPECT_EQ(tab.InsertItem(1, L"Second", 0), 1);
    EXPECT_EQ(tab.GetItemCount(), 2);
    tab.SetCurSel(1);
    EXPECT_EQ(tab.GetCurSel(), 1);
    wchar_t text[32];
    TCITEMW item{};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = text;
    item.cchTextMax = static_cast<int>(std::size(text));
    ASSERT_TRUE(tab.SendMessage(TCM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)));
    EXPECT_STREQ(item.pszText, L"First");
    EXPECT_EQ(item.iImage, 0);

    CRect first;
    EXPECT_TRUE(tab.GetItemRect(0, &first));
    EXPECT_FALSE(first.IsRectEmpty());
    CRect area;
    tab.GetClientRect(&area);
    const CRect whole = area;
    tab.AdjustRect(FALSE, &area);
    EXPECT_LT(area.Height(), whole.Height());
    EXPECT_TRUE(tab.DeleteItem(0));
    EXPECT_EQ(tab.GetItemCount(), 1);
    dialog.DestroyWindow();
}

TEST_F(CommonControls, ListKeepsRowsColumnsAndSelection)
{
    report.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    EXPECT_EQ(report.InsertColumn(0, L"Name", LVCFMT_LEFT, 60), 0);
    EXPECT_EQ(report.InsertColumn(1, L"Value", LVCFMT_RIGHT, 40), 1);
    EXPECT_EQ(report.GetColumnWidth(0), 60);
    EXPECT_EQ(report.InsertItem(0, L"first"), 0);
    EXPECT_EQ(report.InsertItem(1, L"second"), 1);
    EXPECT_TRUE(report.SetItemText(1, 1, L"value"));
    wchar_t text[32];
    ListView_GetItemText(report.m_hWnd, 1, 1, text, static_cast<int>(std::size(text)));
    EXPECT_STREQ(text, L"value");
    EXPECT_TRUE(report.SetColumnWidth(1, 55));
    EXPECT_EQ(report.GetColumnWidth(1), 55);
    EXPECT_EQ(report.GetNextItem(-1, LVNI_SELECTED), -1);
    EXPECT_TRUE(report.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(report.GetNextItem(-1, LVNI_SELECTED), 1);
    EXPECT_TRUE(report.EnsureVisible(1, FALSE));
    EXPECT_TRUE(report.DeleteItem(1));
    EXPECT_EQ(report.GetItemCount(), 1);
}

TEST(ImageList, DestroysWhatItHasAndRefusesASecond)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24, 1, 0));
    EXPECT_FALSE(images.Create(16, 16, ILC_COLOR24, 1, 0));
    EXPECT_TRUE(images.DeleteImageList());
    EXPECT_EQ(images.m_hImageList, nullptr);
    EXPECT_FALSE(images.DeleteImageList());
}

}  // namespace
