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
    afx_msg BOOL OnMaybe(UINT id)
    {
        log.push_back("maybe");
        return id == 1011;
    }
    afx_msg void OnChanged() { log.push_back("changed"); }
    afx_msg void OnFocused(UINT id) { log.push_back("focused " + std::to_string(id)); }
    afx_msg void OnTab(NMHDR* header, LRESULT* result)
    {
        log.push_back("tab " + std::to_string(header->idFrom));
        *result = 5;
    }
    afx_msg void OnReport(UINT id, NMHDR*, LRESULT* result)
    {
        log.push_back("report " + std::to_string(id));
        *result = 6;
    }
    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        CDialog::OnSize(type, cx, cy);
        log.push_back("size " + std::to_string(cx) + "x" + std::to_string(cy));
    }
    afx_msg void OnClose() { log.push_back("close"); }
    afx_msg void OnTimer(UINT_PTR id) { log.push_back("timer " + std::to_string(id)); }
    afx_msg void OnDestroy()
    {
        CDialog::OnDestroy();
        log.push_back("destroy");
    }
    afx_msg BOOL OnEraseBkgnd(CDC* dc)
    {
        log.push_back(dc->m_hDC ? "erase" : "erase nothing");
        return 17;
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind)
    {
        CDialog::OnCtlColor(dc, control, kind);
        log.push_back("colour " + std::to_string(kind) + " of " + std::to_string(control->GetDlgCtrlID()));
        return static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
    }
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL isSystem)
    {
        log.push_back("menu of " + std::to_string(menu->GetMenuItemCount()) + " at " + std::to_string(index) +
                      (isSystem ? " system" : ""));
    }
    afx_msg void OnSetFocus(CWnd* before) { log.push_back(before ? "focus from a window" : "focus from nowhere"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MapDialog, BaseDialog)
    ON_COMMAND(1001, &MapDialog::OnShadowed)
    ON_COMMAND_RANGE(1002, 1004, &MapDialog::OnRange)
    ON_COMMAND_EX(1010, &MapDialog::OnMaybe)
    ON_COMMAND_EX(1011, &MapDialog::OnMaybe)
    ON_EN_CHANGE(IDC_EDIT, &MapDialog::OnChanged)
    ON_CONTROL_RANGE(BN_SETFOCUS, 2000, 2010, &MapDialog::OnFocused)
    ON_NOTIFY(TCN_SELCHANGE, IDC_TAB, &MapDialog::OnTab)
    ON_NOTIFY_RANGE(LVN_ITEMCHANGED, IDC_REPORT, IDC_REPORT, &MapDialog::OnReport)
    ON_WM_SIZE()
    ON_WM_CLOSE()
    ON_WM_TIMER()
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_INITMENUPOPUP()
    ON_WM_SETFOCUS()
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

TEST_F(MessageMap, LetsAnExtendedHandlerSayWhetherItHandled)
{
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(dialog.OnCmdMsg(1010, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &dialog);
    EXPECT_TRUE(dialog.log.empty()) << "a look-up calls nothing";
    EXPECT_FALSE(dialog.OnCmdMsg(1010, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(dialog.OnCmdMsg(1011, CN_COMMAND, nullptr, nullptr));
}

TEST_F(MessageMap, TellsNotificationCodesApart)
{
    Notification(IDC_EDIT, EN_CHANGE);
    Notification(IDC_EDIT, EN_UPDATE);
    EXPECT_EQ(dialog.log, Log{"changed"});
}

TEST_F(MessageMap, PassesTheIdToARangeOfControls)
{
    Notification(2005, BN_SETFOCUS);
    Notification(2005, BN_CLICKED);
    EXPECT_EQ(dialog.log, Log{"focused 2005"});
}

TEST_F(MessageMap, HandsNotificationsTheirHeaderAndTakesTheirResult)
{
    EXPECT_EQ(Notify(IDC_TAB, static_cast<UINT>(TCN_SELCHANGE)), 5);
    EXPECT_EQ(Notify(IDC_REPORT, static_cast<UINT>(LVN_ITEMCHANGED)), 6);
    EXPECT_EQ(dialog.log, (Log{"tab " + std::to_string(IDC_TAB), "report " + std::to_string(IDC_REPORT)}));
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

TEST_F(MessageMap, UnpacksTimersAndPaintingMessages)
{
    dialog.SendMessage(WM_TIMER, 7);
    const CClientDC dc(&dialog);
    EXPECT_EQ(dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)), 17);
    EXPECT_EQ(dialog.log, (Log{"timer 7", "erase"}));
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

TEST_F(MessageMap, UnpacksMenusAndFocus)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 1, L"One");
    dialog.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), MAKELPARAM(3, FALSE));
    dialog.SendMessage(WM_SETFOCUS, reinterpret_cast<WPARAM>(dialog.Item(IDC_EDIT)));
    EXPECT_EQ(dialog.log, (Log{"menu of 1 at 3", "focus from a window"}));
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

TEST_F(MessageMap, KnowsTheMessageInHand)
{
    dialog.pressed = [this] {
        EXPECT_EQ(CWnd::GetCurrentMessage()->message, static_cast<UINT>(WM_COMMAND));
        dialog.SendMessage(Question, 1);
        EXPECT_EQ(CWnd::GetCurrentMessage()->message, static_cast<UINT>(WM_COMMAND)) << "after a message inside it";
    };
    Command(IDC_BUTTON);
}

}  // namespace
