#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestDialog.h"

namespace {

constexpr UINT Question = WM_APP + 1;

using Log = std::vector<std::string>;

// Notes which handler was called, with what.
class BaseDialog : public TestDialog {
public:
    Log log;
    COLORREF background = CLR_INVALID;

protected:
    afx_msg void OnBaseCommand() { log.push_back("base command"); }
    afx_msg void OnShadowed() { log.push_back("base"); }
    afx_msg LRESULT OnQuestion(WPARAM value, LPARAM) { return static_cast<LRESULT>(value * 2); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseDialog, TestDialog)
    ON_COMMAND(1000, &BaseDialog::OnBaseCommand)
    ON_COMMAND(1001, &BaseDialog::OnShadowed)
    ON_MESSAGE(Question, &BaseDialog::OnQuestion)
END_MESSAGE_MAP()

class MapDialog : public BaseDialog {
protected:
    afx_msg void OnShadowed() { log.push_back("derived"); }
    afx_msg void OnRange(UINT id) { log.push_back("range " + std::to_string(id)); }
    afx_msg void OnChosen() { log.push_back("chosen"); }
    afx_msg void OnTab(NMHDR* header, LRESULT* result)
    {
        log.push_back("tab " + std::to_string(header->idFrom));
        *result = 5;
    }
    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        CDialog::OnSize(type, cx, cy);
        log.push_back("size " + std::to_string(cx) + "x" + std::to_string(cy));
    }
    afx_msg void OnClose() { log.push_back("close"); }
    afx_msg void OnDestroy()
    {
        CDialog::OnDestroy();
        log.push_back("destroy");
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind)
    {
        CDialog::OnCtlColor(dc, control, kind);
        log.push_back("colour " + std::to_string(kind) + " of " + std::to_string(control->GetDlgCtrlID()));
        return static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MapDialog, BaseDialog)
    ON_COMMAND(1001, &MapDialog::OnShadowed)
    ON_COMMAND_RANGE(1002, 1004, &MapDialog::OnRange)
    ON_LBN_SELCHANGE(IDC_LIST, &MapDialog::OnChosen)
    ON_NOTIFY(TCN_SELCHANGE, IDC_TAB, &MapDialog::OnTab)
    ON_WM_SIZE()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class MessageMap : public testing::Test {
protected:
    MessageMap()
    {
        dialog.Open();
        dialog.log.clear();
    }
    LRESULT Command(WPARAM id) { return dialog.SendMessage(WM_COMMAND, id); }
    LRESULT Notification(int id, WORD code)
    {
        return dialog.SendMessage(WM_COMMAND, static_cast<WPARAM>(MAKELONG(id, code)),
                                  reinterpret_cast<LPARAM>(dialog.Item(IDC_EDIT)));
    }
    LRESULT Notify(int id, UINT code)
    {
        NMHDR header{dialog.Item(id), static_cast<UINT_PTR>(id), code};
        return dialog.SendMessage(WM_NOTIFY, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&header));
    }

    MapDialog dialog;
};

TEST_F(MessageMap, CallsTheHandlerOfACommandAndCountsItAsHandled)
{
    Command(1000);
    EXPECT_EQ(dialog.log, Log{"base command"});
}

TEST_F(MessageMap, PrefersTheDerivedClass)
{
    Command(1001);
    EXPECT_EQ(dialog.log, Log{"derived"});
}

TEST_F(MessageMap, PassesTheIdToARangeAndEndsAtItsEnds)
{
    for (const WPARAM id : {1002, 1004, 1005})
        Command(id);
    EXPECT_EQ(dialog.log, (Log{"range 1002", "range 1004"}));
}

TEST_F(MessageMap, FindsAHandlerWithoutCallingIt)
{
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(dialog.OnCmdMsg(1001, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &dialog);
    EXPECT_TRUE(dialog.log.empty());
    EXPECT_FALSE(dialog.OnCmdMsg(1010, CN_COMMAND, nullptr, &info));
}

TEST_F(MessageMap, TellsNotificationCodesApart)
{
    Notification(IDC_LIST, LBN_SELCHANGE);
    Notification(IDC_LIST, LBN_DBLCLK);
    EXPECT_EQ(dialog.log, Log{"chosen"});
}

TEST_F(MessageMap, HandsNotificationsTheirHeaderAndTakesTheirResult)
{
    EXPECT_EQ(Notify(IDC_TAB, static_cast<UINT>(TCN_SELCHANGE)), 5);
    EXPECT_EQ(dialog.log, (Log{"tab " + std::to_string(IDC_TAB)}));
}

TEST_F(MessageMap, GivesTheResultOfAMessageHandler)
{
    EXPECT_EQ(dialog.SendMessage(Question, 21), 42);
}

TEST_F(MessageMap, UnpacksSizesSigned)
{
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 200));
    EXPECT_EQ(dialog.log, Log{"size 300x200"});
}

TEST_F(MessageMap, AsksOneHandlerForAllColours)
{
    const CClientDC dc(&dialog);
    const LRESULT brush = dialog.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                                             reinterpret_cast<LPARAM>(dialog.Item(IDC_LABEL)));
    EXPECT_EQ(brush, reinterpret_cast<LRESULT>(::GetStockObject(WHITE_BRUSH)));
    EXPECT_EQ(dialog.log, Log{"colour " + std::to_string(CTLCOLOR_STATIC) + " of " + std::to_string(IDC_LABEL)});
    EXPECT_TRUE(::IsWindow(dialog.Item(IDC_LABEL)));
}

TEST_F(MessageMap, LetsAHandlerSwallowAMessage)
{
    dialog.SendMessage(WM_CLOSE);
    EXPECT_EQ(dialog.log, Log{"close"});
    EXPECT_TRUE(::IsWindow(dialog.m_hWnd));
}

TEST_F(MessageMap, HearsOfTheEnd)
{
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.log.back(), "destroy");
}

}  // namespace
