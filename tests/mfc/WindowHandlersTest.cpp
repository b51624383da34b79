// Each ON_WM_... entry: what its handler is given, and that the handler of the base class hands the message on.
#include <gtest/gtest.h>

#include <afxwin.h>

#include <sstream>
#include <string>

namespace {

constexpr LRESULT Answer = 77;

struct Received {
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};
Received received;

// Stands for the window class whose procedure was there before the object.
LRESULT CALLBACK Original(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    received = {message, wParam, lParam};
    return message == WM_NCCREATE ? ::DefWindowProcW(window, message, wParam, lParam) : Answer;
}

// Notes what each handler is given and lets the base class go on.
class Listener : public CWnd {
public:
    std::string heard;

protected:
    template <class... Values>
    void Hear(const char* name, const Values&... values)
    {
        std::ostringstream text;
        text << name;
        ((text << ' ' << values), ...);
        heard = text.str();
    }
    static int IdOf(const CWnd* window) { return window ? window->GetDlgCtrlID() : -1; }

    afx_msg int OnCreate(LPCREATESTRUCTW structure)
    {
        Hear("create", structure->cx);
        return CWnd::OnCreate(structure);
    }
    afx_msg void OnDestroy()
    {
        Hear("destroy");
        CWnd::OnDestroy();
    }
    afx_msg void OnClose()
    {
        Hear("close");
        CWnd::OnClose();
    }
    afx_msg BOOL OnQueryEndSession()
    {
        Hear("end?");
        return CWnd::OnQueryEndSession();
    }
    afx_msg void OnMove(int x, int y)
    {
        Hear("move", x, y);
        CWnd::OnMove(x, y);
    }
    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        Hear("size", type, cx, cy);
        CWnd::OnSize(type, cx, cy);
    }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* limits)
    {
        Hear("limits", limits->ptMinTrackSize.x);
        CWnd::OnGetMinMaxInfo(limits);
    }
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimised)
    {
        Hear("activate", state, IdOf(other), minimised);
        CWnd::OnActivate(state, other, minimised);
    }
    afx_msg void OnSetFocus(CWnd* before)
    {
        Hear("focus", IdOf(before));
        CWnd::OnSetFocus(before);
    }
    afx_msg void OnKillFocus(CWnd* next)
    {
        Hear("no focus", IdOf(next));
        CWnd::OnKillFocus(next);
    }
    afx_msg void OnEnable(BOOL enabled)
    {
        Hear("enable", enabled);
        CWnd::OnEnable(enabled);
    }
    afx_msg void OnShowWindow(BOOL shown, UINT why)
    {
        Hear("show", shown, why);
        CWnd::OnShowWindow(shown, why);
    }
    afx_msg void OnPaint()
    {
        Hear("paint");
        CWnd::OnPaint();
    }
    afx_msg BOOL OnEraseBkgnd(CDC* dc)
    {
        Hear("erase", dc->GetDeviceCaps(TECHNOLOGY));
        return CWnd::OnEraseBkgnd(dc);
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind)
    {
        Hear("colour", IdOf(control), kind);
        return CWnd::OnCtlColor(dc, control, kind);
    }
    afx_msg BOOL OnSetCursor(CWnd* window, UINT place, UINT message)
    {
        Hear("cursor", IdOf(window), place, message);
        return CWnd::OnSetCursor(window, place, message);
    }
    afx_msg void OnContextMenu(CWnd* window, CPoint point)
    {
        Hear("context", IdOf(window), point.x, point.y);
        CWnd::OnContextMenu(window, point);
    }
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL isSystem)
    {
        Hear("menu", menu->GetMenuItemCount(), index, isSystem);
        CWnd::OnInitMenuPopup(menu, index, isSystem);
    }
    afx_msg void OnSysCommand(UINT command, LPARAM place)
    {
        Hear("system", command, place);
        CWnd::OnSysCommand(command, place);
    }
    afx_msg void OnTimer(UINT_PTR id)
    {
        Hear("timer", id);
        CWnd::OnTimer(id);
    }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item)
    {
        Hear("draw", id, item->itemID);
        CWnd::OnDrawItem(id, item);
    }
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags)
    {
        Hear("key", key, repeats, flags);
        CWnd::OnKeyDown(key, repeats, flags);
    }
    afx_msg void OnKeyUp(UINT key, UINT repeats, UINT flags)
    {
        Hear("key up", key, repeats, flags);
        CWnd::OnKeyUp(key, repeats, flags);
    }
    afx_msg void OnChar(UINT character, UINT repeats, UINT flags)
    {
        Hear("character", character, repeats, flags);
        CWnd::OnChar(character, repeats, flags);
    }
    afx_msg void OnMouseMove(UINT keys, CPoint point)
    {
        Hear("mouse", keys, point.x, point.y);
        CWnd::OnMouseMove(keys, point);
    }
    afx_msg void OnLButtonDown(UINT keys, CPoint point)
    {
        Hear("down", keys, point.x, point.y);
        CWnd::OnLButtonDown(keys, point);
    }
    afx_msg void OnLButtonUp(UINT keys, CPoint point)
    {
        Hear("up", keys, point.x, point.y);
        CWnd::OnLButtonUp(keys, point);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Listener, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_QUERYENDSESSION()
    ON_WM_MOVE()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_SETCURSOR()
    ON_WM_CONTEXTMENU()
    ON_WM_INITMENUPOPUP()
    ON_WM_SYSCOMMAND()
    ON_WM_TIMER()
    ON_WM_DRAWITEM()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_CHAR()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

// A window of the class above as the only one of its kind, with a child of id 9 to speak of.
class WindowHandlers : public testing::Test {
protected:
    WindowHandlers()
    {
        WNDCLASSW description{};
        description.lpfnWndProc = &Original;
        description.hInstance = ::GetModuleHandleW(nullptr);
        description.lpszClassName = ClassName;
        ::RegisterClassW(&description);
        const HWND window = ::CreateWindowExW(0, ClassName, L"", WS_POPUP, 0, 0, 40, 30, nullptr, nullptr,
                                              description.hInstance, nullptr);
        listener.SubclassWindow(window);
        child = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, window, reinterpret_cast<HMENU>(ChildId),
                                  nullptr, nullptr);
    }
    ~WindowHandlers() override
    {
        listener.DestroyWindow();
        ::UnregisterClassW(ClassName, ::GetModuleHandleW(nullptr));
    }

    // Sends the message and compares what the handler heard; returns the answer.
    LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam, const std::string& heard)
    {
        received = {};
        const LRESULT answer = listener.SendMessage(message, wParam, lParam);
        EXPECT_EQ(listener.heard, heard);
        EXPECT_EQ(received.message, message) << heard;
        EXPECT_EQ(received.wParam, wParam) << heard;
        EXPECT_EQ(received.lParam, lParam) << heard;
        return answer;
    }
    void Tell(UINT message, WPARAM wParam, LPARAM lParam, const std::string& heard)
    {
        EXPECT_EQ(Send(message, wParam, lParam, heard), 0) << heard;
    }
    void Ask(UINT message, WPARAM wParam, LPARAM lParam, const std::string& heard)
    {
        EXPECT_EQ(Send(message, wParam, lParam, heard), Answer) << heard;
    }
    [[nodiscard]] WPARAM Child() const { return reinterpret_cast<WPARAM>(child); }

    static constexpr const wchar_t* ClassName = L"KZWindowHandlers";
    static constexpr int ChildId = 9;
    Listener listener;
    HWND child = nullptr;
};

TEST_F(WindowHandlers, AreGivenTheWindowsStateAndPlace)
{
    Tell(WM_MOVE, 0, MAKELPARAM(-3, 4), "move -3 4");
    Tell(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(30, 20), "size 2 30 20");
    Tell(WM_ENABLE, TRUE, 0, "enable 1");
    Tell(WM_SHOWWINDOW, TRUE, SW_PARENTOPENING, "show 1 3");
    Tell(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, TRUE), static_cast<LPARAM>(Child()), "activate 2 9 1");
    Tell(WM_SETFOCUS, Child(), 0, "focus 9");
    Tell(WM_KILLFOCUS, 0, 0, "no focus -1");
    MINMAXINFO limits{};
    limits.ptMinTrackSize.x = 123;
    Tell(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits), "limits 123");
}

TEST_F(WindowHandlers, AreGivenKeysAndTheMouse)
{
    Tell(WM_KEYDOWN, VK_F5, MAKELPARAM(2, 0x4001), "key 116 2 16385");
    Tell(WM_KEYUP, VK_F5, MAKELPARAM(1, 0xC001), "key up 116 1 49153");
    Tell(WM_CHAR, L'x', MAKELPARAM(3, 1), "character 120 3 1");
    Tell(WM_MOUSEMOVE, MK_SHIFT, MAKELPARAM(5, -6), "mouse 4 5 -6");
    Tell(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 8), "down 1 7 8");
    Tell(WM_LBUTTONUP, 0, MAKELPARAM(7, 8), "up 0 7 8");
    Tell(WM_TIMER, 12, 0, "timer 12");
    Tell(WM_SYSCOMMAND, SC_KEYMENU, L'm', "system 61696 109");
    Tell(WM_CONTEXTMENU, Child(), MAKELPARAM(-1, -1), "context 9 -1 -1");
    Ask(WM_SETCURSOR, Child(), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), "cursor 9 1 512");
}

TEST_F(WindowHandlers, AreGivenWhatIsToBePainted)
{
    const CClientDC dc(&listener);
    const auto context = reinterpret_cast<WPARAM>(dc.m_hDC);
    Tell(WM_PAINT, 0, 0, "paint");
    Ask(WM_ERASEBKGND, context, 0, "erase " + std::to_string(DT_RASDISPLAY));
    Ask(WM_CTLCOLORMSGBOX, context, static_cast<LPARAM>(Child()), "colour 9 0");
    Ask(WM_CTLCOLORSTATIC, context, static_cast<LPARAM>(Child()), "colour 9 6");
    DRAWITEMSTRUCT item{};
    item.itemID = 4;
    Tell(WM_DRAWITEM, ChildId, reinterpret_cast<LPARAM>(&item), "draw 9 4");
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    Tell(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), MAKELPARAM(2, TRUE), "menu 0 2 1");
}

TEST_F(WindowHandlers, AreGivenTheBeginningAndTheEnd)
{
    CREATESTRUCTW structure{};
    structure.cx = 44;
    Ask(WM_CREATE, 0, reinterpret_cast<LPARAM>(&structure), "create 44");
    Tell(WM_CLOSE, 0, 0, "close");
    Ask(WM_QUERYENDSESSION, 0, 0, "end?");
    Tell(WM_DESTROY, 0, 0, "destroy");
}

}  // namespace
