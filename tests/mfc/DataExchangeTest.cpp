#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "Controls.h"
#include "MessageBoxes.h"
#include "TestDialog.h"

namespace {

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

TEST_F(DataExchange, MovesTheIndexOfARadioGroupOfItsOwnGroupAlone)
{
    ::CheckDlgButton(dialog.m_hWnd, IDC_AFTER_RADIOS, BST_CHECKED);
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

TEST_F(DataExchange, PointsAtTheControlThatAFunctionRefuses)
{
    const auto refuse = [](CDataExchange* exchange) {
        exchange->PrepareEditCtrl(IDC_EDIT);
        exchange->Fail();
    };
    dialog.GetDlgItem(IDC_EDIT)->SetWindowText(L"abc");
    dialog.GetDlgItem(IDC_CHECK)->SetFocus();
    EXPECT_FALSE(Exchange(TRUE, refuse));
    EXPECT_EQ(::GetFocus(), dialog.Item(IDC_EDIT));
    EXPECT_EQ(::SendMessageW(dialog.Item(IDC_EDIT), EM_GETSEL, 0, 0), MAKELRESULT(0, 3));
    EXPECT_TRUE(messages.Texts().empty()) << "the function has told the user";
}

TEST_F(DataExchange, ReportsThatMemoryHasRunOutInEitherWay)
{
    EXPECT_FALSE(Exchange(TRUE, [](CDataExchange*) { AfxThrowMemoryException(); }));
    EXPECT_FALSE(Exchange(TRUE, [](CDataExchange*) { throw std::bad_alloc(); }));
    EXPECT_EQ(messages.Texts(), std::vector<std::wstring>(2, L"Out of memory."));
}

TEST_F(DataExchange, LetsOtherFailuresOfTheLibraryPass)
{
    EXPECT_THROW(Exchange(TRUE, [](CDataExchange*) { throw std::runtime_error("other"); }), std::runtime_error);
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
