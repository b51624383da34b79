#include <gtest/gtest.h>

#include "Controls.h"
#include "MessageBoxes.h"
#include "TestDialog.h"

namespace {

using kztest::SetText;
using kztest::TextOf;

class DataExchange : public testing::Test {
protected:
    DataExchange() { dialog.Open(); }

    // Moves a value by a DDX function, to the dialog or from it.
    template <class Function>
    BOOL Exchange(BOOL save, Function function)
    {
        dialog.exchange = function;
        return dialog.UpdateData(save);
    }

    TestDialog dialog;
    kztest::MessageBoxes messages;
};

TEST_F(DataExchange, BindsAControlOnce)
{
    CEdit edit;
    const auto bind = [&](CDataExchange* exchange) { DDX_Control(exchange, IDC_EDIT, edit); };
    EXPECT_TRUE(Exchange(FALSE, bind));
    EXPECT_EQ(edit.m_hWnd, dialog.Item(IDC_EDIT));
    EXPECT_EQ(dialog.GetDlgItem(IDC_EDIT), &edit);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    dialog.DestroyWindow();
    EXPECT_EQ(edit.m_hWnd, nullptr);
}

TEST_F(DataExchange, RefusesAControlThatTheTemplateLacks)
{
    CEdit edit;
    EXPECT_FALSE(Exchange(FALSE, [&](CDataExchange* exchange) { DDX_Control(exchange, 9999, edit); }));
    EXPECT_EQ(edit.m_hWnd, nullptr);
    EXPECT_EQ(messages.Texts(), std::vector<std::wstring>{L"An operation that is not supported was attempted."});
}

TEST_F(DataExchange, RefusesASecondObjectForAControl)
{
    CEdit first;
    CEdit second;
    EXPECT_FALSE(Exchange(FALSE, [&](CDataExchange* exchange) {
        DDX_Control(exchange, IDC_EDIT, first);
        DDX_Control(exchange, IDC_EDIT, second);
    }));
    EXPECT_EQ(second.m_hWnd, nullptr);
    dialog.DestroyWindow();
}

TEST_F(DataExchange, MovesIntegers)
{
    int value = -42;
    const auto exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_EDIT, value); };
    EXPECT_TRUE(Exchange(FALSE, exchange));
    EXPECT_EQ(TextOf(dialog.m_hWnd, IDC_EDIT), L"-42");
    SetText(dialog.m_hWnd, IDC_EDIT, L" 17 ");
    EXPECT_TRUE(Exchange(TRUE, exchange));
    EXPECT_EQ(value, 17);
}

TEST_F(DataExchange, RefusesWhatIsNoIntegerAndPointsAtIt)
{
    int value = 5;
    for (const wchar_t* text : {L"x", L"1x", L"", L"2147483648", L"1.5"}) {
        SetText(dialog.m_hWnd, IDC_EDIT, text);
        ::SetFocus(dialog.Item(IDC_CHECK));
        EXPECT_FALSE(Exchange(TRUE, [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_EDIT, value); })) << text;
        EXPECT_EQ(::GetFocus(), dialog.Item(IDC_EDIT));
    }
    EXPECT_EQ(value, 5);
    EXPECT_EQ(messages.Texts(), std::vector<std::wstring>(5, L"Please enter an integer."));
}

TEST_F(DataExchange, MovesUnsignedIntegersAndRefusesNegativeOnes)
{
    UINT value = 4000000000U;
    const auto exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_EDIT, value); };
    EXPECT_TRUE(Exchange(FALSE, exchange));
    EXPECT_EQ(TextOf(dialog.m_hWnd, IDC_EDIT), L"4000000000");
    EXPECT_TRUE(Exchange(TRUE, exchange));
    SetText(dialog.m_hWnd, IDC_EDIT, L"-1");
    EXPECT_FALSE(Exchange(TRUE, exchange));
    EXPECT_EQ(value, 4000000000U);
}

TEST_F(DataExchange, MovesNumbers)
{
    double value = 0.25;
    const auto exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_EDIT, value); };
    EXPECT_TRUE(Exchange(FALSE, exchange));
    EXPECT_EQ(TextOf(dialog.m_hWnd, IDC_EDIT), L"0.25");
    SetText(dialog.m_hWnd, IDC_EDIT, L"1e3");
    EXPECT_TRUE(Exchange(TRUE, exchange));
    EXPECT_EQ(value, 1000.0);
    SetText(dialog.m_hWnd, IDC_EDIT, L"much");
    EXPECT_FALSE(Exchange(TRUE, exchange));
    EXPECT_EQ(messages.Texts(), std::vector<std::wstring>{L"Please enter a number."});
}

TEST_F(DataExchange, MovesTexts)
{
    CString value(L"to the control");
    const auto exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_EDIT, value); };
    EXPECT_TRUE(Exchange(FALSE, exchange));
    EXPECT_EQ(TextOf(dialog.m_hWnd, IDC_EDIT), L"to the control");
    SetText(dialog.m_hWnd, IDC_EDIT, L"from it");
    EXPECT_TRUE(Exchange(TRUE, exchange));
    EXPECT_EQ(value, L"from it");
}

TEST_F(DataExchange, CutsTextsAtTheirBuffer)
{
    wchar_t value[5] = L"abc";
    const auto exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_EDIT, value, 5); };
    EXPECT_TRUE(Exchange(FALSE, exchange));
    EXPECT_EQ(TextOf(dialog.m_hWnd, IDC_EDIT), L"abc");
    SetText(dialog.m_hWnd, IDC_EDIT, L"abcdefgh");
    EXPECT_TRUE(Exchange(TRUE, exchange));
    EXPECT_STREQ(value, L"abcd");
}

TEST_F(DataExchange, MovesCheckMarks)
{
    int value = BST_CHECKED;
    const auto exchange = [&](CDataExchange* pDX) { DDX_Check(pDX, IDC_CHECK, value); };
    EXPECT_TRUE(Exchange(FALSE, exchange));
    EXPECT_TRUE(kztest::IsChecked(dialog.m_hWnd, IDC_CHECK));
    dialog.CheckDlgButton(IDC_CHECK, BST_UNCHECKED);
    EXPECT_TRUE(Exchange(TRUE, exchange));
    EXPECT_EQ(value, BST_UNCHECKED);
    value = 7;
    EXPECT_TRUE(Exchange(FALSE, exchange));
    EXPECT_FALSE(kztest::IsChecked(dialog.m_hWnd, IDC_CHECK));
}

TEST_F(DataExchange, MovesTheIndexOfARadioGroupOfItsOwnGroupAlone)
{
    dialog.CheckDlgButton(IDC_AFTER_RADIOS, BST_CHECKED);
    for (const int index : {0, 1, 2, -1}) {
        int value = index;
        const auto exchange = [&](CDataExchange* pDX) { DDX_Radio(pDX, IDC_RADIO_FIRST, value); };
        EXPECT_TRUE(Exchange(FALSE, exchange));
        for (int button = 0; button < 3; ++button)
            EXPECT_EQ(kztest::IsChecked(dialog.m_hWnd, IDC_RADIO_FIRST + button), button == index);
        EXPECT_TRUE(kztest::IsChecked(dialog.m_hWnd, IDC_AFTER_RADIOS));
        value = 99;
        EXPECT_TRUE(Exchange(TRUE, exchange));
        EXPECT_EQ(value, index);
    }
}

TEST_F(DataExchange, LeavesRadioButtonsAutomaticAndTheCheckedOneTheTabStop)
{
    const auto styleOf = [this](int button) {
        return static_cast<DWORD>(
            ::GetWindowLongPtrW(::GetDlgItem(dialog.m_hWnd, IDC_RADIO_FIRST + button), GWL_STYLE));
    };
    const DWORD first = styleOf(0);
    for (const int index : {1, 1, 2, 0}) {
        int value = index;
        EXPECT_TRUE(Exchange(FALSE, [&](CDataExchange* pDX) { DDX_Radio(pDX, IDC_RADIO_FIRST, value); }));
        for (int button = 0; button < 3; ++button) {
            EXPECT_EQ(styleOf(button) & BS_TYPEMASK, DWORD{BS_AUTORADIOBUTTON}) << index;
            EXPECT_EQ((styleOf(button) & WS_TABSTOP) != 0, button == index) << index;
        }
    }
    EXPECT_EQ(styleOf(0), first);
    ::SendDlgItemMessageW(dialog.m_hWnd, IDC_RADIO_SECOND, BM_CLICK, 0, 0);
    EXPECT_FALSE(kztest::IsChecked(dialog.m_hWnd, IDC_RADIO_FIRST));
}

TEST_F(DataExchange, MovesSelectionsOfLists)
{
    for (const wchar_t* text : {L"one", L"two", L"three"}) {
        ::SendDlgItemMessageW(dialog.m_hWnd, IDC_COMBO, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        ::SendDlgItemMessageW(dialog.m_hWnd, IDC_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    int combo = 2;
    int list = 1;
    const auto exchange = [&](CDataExchange* pDX) {
        DDX_CBIndex(pDX, IDC_COMBO, combo);
        DDX_LBIndex(pDX, IDC_LIST, list);
    };
    EXPECT_TRUE(Exchange(FALSE, exchange));
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_COMBO, CB_GETCURSEL), 2);
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_LIST, LB_GETCURSEL), 1);
    dialog.SendDlgItemMessage(IDC_COMBO, CB_SETCURSEL, static_cast<WPARAM>(-1));
    EXPECT_TRUE(Exchange(TRUE, exchange));
    EXPECT_EQ(combo, -1);
    CString text(L"two");
    const auto exchangeText = [&](CDataExchange* pDX) { DDX_CBString(pDX, IDC_COMBO, text); };
    EXPECT_TRUE(Exchange(FALSE, exchangeText));
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_COMBO, CB_GETCURSEL), 1);
    text.Empty();
    EXPECT_TRUE(Exchange(TRUE, exchangeText));
    EXPECT_EQ(text, L"two");
}

TEST_F(DataExchange, LimitsTheLengthOfATextInTheControlAndAtTheEnd)
{
    CString value(L"ab");
    const auto exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_EDIT, value);
        DDV_MaxChars(pDX, value, 3);
    };
    EXPECT_TRUE(Exchange(FALSE, exchange));
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_EDIT, EM_GETLIMITTEXT), 3);
    SetText(dialog.m_hWnd, IDC_EDIT, L"abcd");
    EXPECT_FALSE(Exchange(TRUE, exchange));
    SetText(dialog.m_hWnd, IDC_EDIT, L"abc");
    EXPECT_TRUE(Exchange(TRUE, exchange));
    EXPECT_EQ(messages.Texts(), std::vector<std::wstring>{L"Please enter no more than 3 characters."});
}

TEST_F(DataExchange, ChecksTheRangeOfAnIntegerAtTheEndAlone)
{
    int value = 0;
    const auto exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_EDIT, value);
        DDV_MinMaxInt(pDX, value, 1, 8);
    };
    EXPECT_TRUE(Exchange(FALSE, exchange));
    for (const auto& [text, accepted] : {std::pair(L"0", FALSE), {L"1", TRUE}, {L"8", TRUE}, {L"9", FALSE}}) {
        SetText(dialog.m_hWnd, IDC_EDIT, text);
        EXPECT_EQ(Exchange(TRUE, exchange), accepted) << text;
    }
}

TEST_F(DataExchange, HoldsNotificationsOfTheControlsBack)
{
    int calls = 0;
    dialog.pressed = [&] { ++calls; };
    EXPECT_TRUE(Exchange(FALSE, [&](CDataExchange*) { kztest::Click(dialog.m_hWnd, IDC_BUTTON); }));
    EXPECT_EQ(calls, 0);
    kztest::Click(dialog.m_hWnd, IDC_BUTTON);
    EXPECT_EQ(calls, 1);
}

TEST(DataExchangeFailure, EndsTheDialogThatOpensWithIt)
{
    const kztest::MessageBoxes messages;
    CEdit edit;
    TestDialog dialog;
    dialog.exchange = [&](CDataExchange* exchange) { DDX_Control(exchange, 9999, edit); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(messages.Texts().size(), 1u);
}

}  // namespace
