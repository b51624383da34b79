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
    ASSERT_TRUE(bitmap.CreateBitmap(16, 16, 1, 24, nullptr));
    EXPECT_EQ(images.Add(&bitmap, RGB(255, 0, 255)), 0);
    CBitmap mask;
    ASSERT_TRUE(mask.CreateBitmap(16, 16, 1, 1, nullptr));
    EXPECT_EQ(images.Add(&bitmap, &mask), 1);
    EXPECT_EQ(images.GetImageCount(), 2);
    EXPECT_EQ(tab.SetImageList(&images), nullptr);
    EXPECT_EQ(tab.GetImageList(), &images);

    EXPECT_EQ(tab.InsertItem(0, L"First", 0), 0);
    EXPECT_EQ(tab.InsertItem(1, L"Second"), 1);
    EXPECT_EQ(tab.GetItemCount(), 2);
    tab.SetCurSel(1);
    EXPECT_EQ(tab.GetCurSel(), 1);
    wchar_t renamed[] = L"2nd";
    TCITEMW change{};
    change.mask = TCIF_TEXT;
    change.pszText = renamed;
    EXPECT_TRUE(tab.SetItem(1, &change));
    wchar_t read[32];
    change.pszText = read;
    change.cchTextMax = static_cast<int>(std::size(read));
    ASSERT_TRUE(tab.GetItem(1, &change));
    EXPECT_STREQ(read, L"2nd");

    wchar_t text[32];
    TCITEMW item{};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = text;
    item.cchTextMax = static_cast<int>(std::size(text));
    ASSERT_TRUE(tab.GetItem(0, &item));
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
    const std::wstring longText(300, L'x');
    EXPECT_TRUE(report.SetItemText(1, 1, longText.c_str()));
    EXPECT_EQ(report.GetItemText(1, 1), longText.c_str());
    EXPECT_EQ(report.GetItemText(0, 0), L"first");
    EXPECT_TRUE(report.SetItemData(1, 7));
    EXPECT_EQ(report.GetItemData(1), 7u);
    EXPECT_EQ(report.GetNextItem(-1, LVNI_SELECTED), -1);
    EXPECT_TRUE(report.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(report.GetNextItem(-1, LVNI_SELECTED), 1);
    EXPECT_TRUE(report.DeleteAllItems());
    EXPECT_EQ(report.GetItemCount(), 0);
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
