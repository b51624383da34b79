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

TEST_F(Controls, EditLimitsAndSelects)
{
    edit.LimitText(4);
    EXPECT_EQ(edit.SendMessage(EM_GETLIMITTEXT), 4);
    edit.SetWindowText(L"abcd");
    edit.SetSel(1, 3);
    EXPECT_EQ(edit.SendMessage(EM_GETSEL), MAKELRESULT(1, 3));
}

TEST_F(Controls, ButtonChecksAndChangesItsStyle)
{
    check.SetCheck(BST_CHECKED);
    EXPECT_EQ(check.GetCheck(), BST_CHECKED);
    check.SetButtonStyle(BS_PUSHBUTTON);
    EXPECT_EQ(check.GetStyle() & BS_TYPEMASK, static_cast<DWORD>(BS_PUSHBUTTON));
}

TEST_F(Controls, ComboBoxKeepsTextsAndSelection)
{
    EXPECT_EQ(combo.AddString(L"one"), 0);
    EXPECT_EQ(combo.AddString(L"two"), 1);
    combo.SetCurSel(1);
    EXPECT_EQ(combo.GetCurSel(), 1);
    CString text;
    combo.GetWindowText(text);
    EXPECT_EQ(text, L"two");
    combo.ResetContent();
    EXPECT_EQ(combo.SendMessage(CB_GETCOUNT), 0);
}

TEST_F(Controls, ListBoxKeepsTextsMarksAndExtent)
{
    for (const wchar_t* text : {L"one", L"two", L"three"})
        list.AddString(text);
    EXPECT_EQ(list.GetSelCount(), 0);
    list.SendMessage(LB_SETSEL, TRUE, 1);
    EXPECT_EQ(list.GetSelCount(), 1);
    EXPECT_EQ(list.GetSel(0), 0);
    EXPECT_GT(list.GetSel(1), 0);
    list.SetHorizontalExtent(432);
    EXPECT_EQ(list.SendMessage(LB_GETHORIZONTALEXTENT), 432);
    list.ResetContent();
    EXPECT_EQ(list.SendMessage(LB_GETCOUNT), 0);
}

TEST_F(Controls, WindowMembersDoWhatTheySay)
{
    label.SetWindowText(L"new text");
    CString text;
    EXPECT_EQ(dialog.GetDlgItemText(IDC_LABEL, text), 8);
    EXPECT_EQ(text, L"new text");
    edit.EnableWindow(FALSE);
    EXPECT_FALSE(edit.IsWindowEnabled());
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
