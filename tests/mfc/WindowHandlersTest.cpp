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
    afx_msg void OnSysColorChange()
    {
        Hear("system colours");
        CWnd::OnSysColorChange();
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind)
    {
        Hear("colour", IdOf(control), kind);
        return CWnd::OnCtlColor(dc, control, kind);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Listener, CWnd)
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_CTLCOLOR()
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

TEST_F(WindowHandlers, AreGivenTheWindowsSize)
{
    Tell(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(30, 20), "size 2 30 20");
    MINMAXINFO limits{};
    limits.ptMinTrackSize.x = 123;
    Tell(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits), "limits 123");
}

TEST_F(WindowHandlers, AreAskedForColours)
{
    const CClientDC dc(&listener);
    const auto context = reinterpret_cast<WPARAM>(dc.m_hDC);
    Ask(WM_CTLCOLORMSGBOX, context, static_cast<LPARAM>(Child()), "colour 9 0");
    Ask(WM_CTLCOLORSTATIC, context, static_cast<LPARAM>(Child()), "colour 9 6");
}

// Windows tells top windows alone.
TEST_F(WindowHandlers, PassNewSystemColoursOnToAllDescendants)
{
    Listener inner;
    ASSERT_TRUE(inner.SubclassWindow(child));
    const HWND innermost = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, child, nullptr, nullptr, nullptr);
    Listener last;
    ASSERT_TRUE(last.SubclassWindow(innermost));
    Tell(WM_SYSCOLORCHANGE, 0, 0, "system colours");
    EXPECT_EQ(inner.heard, "system colours");
    EXPECT_EQ(last.heard, "system colours");
    last.heard.clear();
    inner.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(last.heard, "") << "a child window tells nobody";
}

TEST_F(WindowHandlers, AreToldOfTheEnd)
{
    Tell(WM_CLOSE, 0, 0, "close");
    Tell(WM_DESTROY, 0, 0, "destroy");
}

}  // namespace
