#include <gtest/gtest.h>

#include "Controls.h"
#include "TestDialog.h"

namespace {

class Controls : public testing::Test {
protected:
    Controls()
    {
        dialog.exchange = [this](CDataExchange* exchange) {
            DDX_Control(exchange, IDC_EDIT, edit);
            DDX_Control(exchange, IDC_CHECK, check);
            DDX_Control(exchange, IDC_COMBO, combo);
            DDX_Control(exchange, IDC_LIST, list);
            DDX_Control(exchange, IDC_LABEL, label);
        };
        dialog.Open();
    }

    CEdit edit;
    CButton check;
    CComboBox combo;
    CListBox list;
    CStatic label;
    TestDialog dialog;
};

TEST_F(Controls, EditLimitsSelectsAndReplaces)
{
    edit.LimitText(4);
    EXPECT_EQ(edit.GetLimitText(), 4u);
    edit.SetWindowText(L"abcd");
    edit.SetSel(1, 3);
    int start = 0;
    int end = 0;
    edit.GetSel(start, end);
    EXPECT_EQ(start, 1);
    EXPECT_EQ(end, 3);
    edit.ReplaceSel(L"X");
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, L"aXd");
    EXPECT_TRUE(edit.GetModify());
}

TEST_F(Controls, ButtonChecksAndChangesItsStyle)
{
    check.SetCheck(BST_CHECKED);
    EXPECT_EQ(check.GetCheck(), BST_CHECKED);
    check.SetButtonStyle(BS_PUSHBUTTON);
    EXPECT_EQ(check.GetButtonStyle() & BS_TYPEMASK, static_cast<UINT>(BS_PUSHBUTTON));
}

TEST_F(Controls, ComboBoxKeepsTextsDataAndSelection)
{
    EXPECT_EQ(combo.AddString(L"one"), 0);
    EXPECT_EQ(combo.AddString(L"two"), 1);
    combo.SetItemData(1, 22);
    combo.SetCurSel(1);
    CString text;
    combo.GetLBText(1, text);
    EXPECT_EQ(text, L"two");
    EXPECT_EQ(combo.GetItemData(1), 22u);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(combo.FindStringExact(-1, L"one"), 0);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_THROW(combo.GetLBText(0, text), CInvalidArgException*);
}

TEST_F(Controls, ListBoxKeepsTextsAndSelection)
{
    list.AddString(L"one");
    list.SetCurSel(0);
    CString text;
    list.GetText(0, text);
    EXPECT_EQ(text, L"one");
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_THROW(list.GetText(1, text), CInvalidArgException*);
}

TEST_F(Controls, WindowMembersDoWhatTheySay)
{
    label.SetWindowText(L"new text");
    CString text;
    EXPECT_EQ(dialog.GetDlgItemText(IDC_LABEL, text), 8);
    EXPECT_EQ(text, L"new text");
    edit.EnableWindow(FALSE);
    EXPECT_FALSE(edit.IsWindowEnabled());
    dialog.CheckRadioButton(IDC_RADIO_FIRST, IDC_RADIO_THIRD, IDC_RADIO_SECOND);
    EXPECT_EQ(dialog.GetCheckedRadioButton(IDC_RADIO_FIRST, IDC_RADIO_THIRD), IDC_RADIO_SECOND);
    EXPECT_TRUE(label.ModifyStyle(0, WS_BORDER));
    EXPECT_FALSE(label.ModifyStyle(0, WS_BORDER)) << "nothing changes any more";
    CFont* font = dialog.GetFont();
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(label.GetFont(), font);
}

TEST_F(Controls, MovesAndMapsRectangles)
{
    edit.MoveWindow(CRect(10, 20, 60, 40));
    CRect place;
    edit.GetWindowRect(&place);
    dialog.ScreenToClient(&place);
    EXPECT_TRUE(place == CRect(10, 20, 60, 40));
    dialog.ClientToScreen(&place);
    edit.ScreenToClient(&place);
    EXPECT_EQ(place.Width(), 50);
}

}  // namespace
