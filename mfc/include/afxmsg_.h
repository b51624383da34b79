// The message map macros. Part of afxwin.h; the functions named AfxSig... unpack a message for one kind of handler.
//
// Handlers are written &Class::Function, as current MFC demands.
#pragma once

#include <type_traits>
#include <utility>

namespace afx {

template <class Result, class Class, class... Arguments>
Class* ClassOf(Result (Class::*)(Arguments...));

template <class Result, class Class, class... Arguments>
Class* ClassOf(Result (Class::*)(Arguments...) const);

template <auto Handler, class... Arguments>
decltype(auto) Call(CCmdTarget* target, Arguments&&... arguments)
{
    using Class = std::remove_pointer_t<decltype(ClassOf(Handler))>;
    return (static_cast<Class*>(target)->*Handler)(std::forward<Arguments>(arguments)...);
}

inline int LowCoordinate(LPARAM packed) noexcept
{
    return static_cast<short>(LOWORD(packed));
}
inline int HighCoordinate(LPARAM packed) noexcept
{
    return static_cast<short>(HIWORD(packed));
}
inline CWnd* WindowOf(WPARAM handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

// Objects for the length of one message, for handles that come and go too often for the handle maps.
class MessageDC : public CDC {
public:
    explicit MessageDC(WPARAM handle) noexcept { m_hDC = reinterpret_cast<HDC>(handle); }
    ~MessageDC() override { m_hDC = nullptr; }
};

class MessageWindow : public CWnd {
public:
    explicit MessageWindow(LPARAM handle) : m_window(CWnd::FromHandlePermanent(reinterpret_cast<HWND>(handle)))
    {
        if (!m_window)
            m_hWnd = reinterpret_cast<HWND>(handle);
    }
    ~MessageWindow() override { m_hWnd = nullptr; }
    [[nodiscard]] CWnd* Get() noexcept { return m_window ? m_window : this; }

private:
    CWnd* m_window;
};

}  // namespace afx

// -- Commands and notifications ---------------------------------------------------------------------------------------

template <auto Handler>
BOOL AfxSigCmd_v(CCmdTarget* target, AFX_MSGARGS&)
{
    afx::Call<Handler>(target);
    return TRUE;
}
template <auto Handler>
BOOL AfxSigCmd_RANGE(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, args.nID);
    return TRUE;
}
template <auto Handler>
BOOL AfxSigCmd_EX(CCmdTarget* target, AFX_MSGARGS& args)
{
    return afx::Call<Handler>(target, args.nID);
}
template <auto Handler>
BOOL AfxSigNotify_v(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, args.pNotify->pNMHDR, args.pNotify->pResult);
    return TRUE;
}
template <auto Handler>
BOOL AfxSigNotify_RANGE(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, args.nID, args.pNotify->pNMHDR, args.pNotify->pResult);
    return TRUE;
}
template <auto Handler>
BOOL AfxSigNotify_EX(CCmdTarget* target, AFX_MSGARGS& args)
{
    return afx::Call<Handler>(target, args.nID, args.pNotify->pNMHDR, args.pNotify->pResult);
}

#define AFX_CMD_ENTRY(code, first, last, thunk)                                                                        \
    {WM_COMMAND, static_cast<WORD>(code), static_cast<UINT>(first), static_cast<UINT>(last), &thunk},
#define AFX_NOTIFY_ENTRY(code, first, last, thunk)                                                                     \
    {WM_NOTIFY, static_cast<WORD>(code), static_cast<UINT>(first), static_cast<UINT>(last), &thunk},

#define ON_COMMAND(id, memberFxn) AFX_CMD_ENTRY(CN_COMMAND, id, id, AfxSigCmd_v<memberFxn>)
#define ON_COMMAND_EX(id, memberFxn) AFX_CMD_ENTRY(CN_COMMAND, id, id, AfxSigCmd_EX<memberFxn>)
#define ON_COMMAND_RANGE(id, idLast, memberFxn) AFX_CMD_ENTRY(CN_COMMAND, id, idLast, AfxSigCmd_RANGE<memberFxn>)
#define ON_CONTROL(wNotifyCode, id, memberFxn) AFX_CMD_ENTRY(wNotifyCode, id, id, AfxSigCmd_v<memberFxn>)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                           \
    AFX_CMD_ENTRY(wNotifyCode, id, idLast, AfxSigCmd_RANGE<memberFxn>)
#define ON_NOTIFY(wNotifyCode, id, memberFxn) AFX_NOTIFY_ENTRY(wNotifyCode, id, id, AfxSigNotify_v<memberFxn>)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn) AFX_NOTIFY_ENTRY(wNotifyCode, id, id, AfxSigNotify_EX<memberFxn>)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                            \
    AFX_NOTIFY_ENTRY(wNotifyCode, id, idLast, AfxSigNotify_RANGE<memberFxn>)

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)

// -- Window messages --------------------------------------------------------------------------------------------------

// All WM_CTLCOLOR... messages are looked up under the one number that 16-bit Windows had for them.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif

template <auto Handler>
BOOL AfxSig_lwl(CCmdTarget* target, AFX_MSGARGS& args)
{
    args.lResult = afx::Call<Handler>(target, args.wParam, args.lParam);
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vv(CCmdTarget* target, AFX_MSGARGS&)
{
    afx::Call<Handler>(target);
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_bv(CCmdTarget* target, AFX_MSGARGS& args)
{
    args.lResult = afx::Call<Handler>(target);
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vb(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, static_cast<BOOL>(args.wParam));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vu(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, static_cast<UINT_PTR>(args.wParam));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vbw(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, static_cast<BOOL>(args.wParam), static_cast<UINT>(args.lParam));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vwii(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, static_cast<UINT>(args.wParam), afx::LowCoordinate(args.lParam),
                       afx::HighCoordinate(args.lParam));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vii(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, afx::LowCoordinate(args.lParam), afx::HighCoordinate(args.lParam));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vwp(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, static_cast<UINT>(args.wParam), CPoint(args.lParam));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vwww(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, static_cast<UINT>(args.wParam), static_cast<UINT>(LOWORD(args.lParam)),
                       static_cast<UINT>(HIWORD(args.lParam)));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vwl(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, static_cast<UINT>(args.wParam), args.lParam);
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vW(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, afx::WindowOf(args.wParam));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vWp(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, afx::WindowOf(args.wParam), CPoint(args.lParam));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vwWb(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, static_cast<UINT>(LOWORD(args.wParam)), afx::WindowOf(static_cast<WPARAM>(args.lParam)),
                       static_cast<BOOL>(HIWORD(args.wParam)));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_bWww(CCmdTarget* target, AFX_MSGARGS& args)
{
    args.lResult = afx::Call<Handler>(target, afx::WindowOf(args.wParam), static_cast<UINT>(LOWORD(args.lParam)),
                                      static_cast<UINT>(HIWORD(args.lParam)));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_vMwb(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, CMenu::FromHandle(reinterpret_cast<HMENU>(args.wParam)),
                       static_cast<UINT>(LOWORD(args.lParam)), static_cast<BOOL>(HIWORD(args.lParam)));
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_bD(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::MessageDC dc(args.wParam);
    args.lResult = afx::Call<Handler>(target, &dc);
    return TRUE;
}
template <auto Handler>
BOOL AfxSig_hDWw(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::MessageDC dc(args.wParam);
    afx::MessageWindow window(args.lParam);
    const HBRUSH brush =
        afx::Call<Handler>(target, &dc, window.Get(), static_cast<UINT>(args.nMessage - WM_CTLCOLORMSGBOX));
    args.lResult = reinterpret_cast<LRESULT>(brush);
    return TRUE;
}
template <auto Handler, class Structure>
BOOL AfxSig_vS(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, reinterpret_cast<Structure*>(args.lParam));
    return TRUE;
}
template <auto Handler, class Structure>
BOOL AfxSig_iS(CCmdTarget* target, AFX_MSGARGS& args)
{
    args.lResult = afx::Call<Handler>(target, reinterpret_cast<Structure*>(args.lParam));
    return TRUE;
}
template <auto Handler, class Structure>
BOOL AfxSig_viS(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, static_cast<int>(args.wParam), reinterpret_cast<Structure*>(args.lParam));
    return TRUE;
}

#define AFX_WM_ENTRY(message, ...) {message, 0, 0, 0, &__VA_ARGS__},

#define ON_MESSAGE(message, memberFxn) AFX_WM_ENTRY(message, AfxSig_lwl<memberFxn>)
#define ON_WM_CREATE() AFX_WM_ENTRY(WM_CREATE, AfxSig_iS<&ThisClass::OnCreate, CREATESTRUCTW>)
#define ON_WM_DESTROY() AFX_WM_ENTRY(WM_DESTROY, AfxSig_vv<&ThisClass::OnDestroy>)
#define ON_WM_NCDESTROY() AFX_WM_ENTRY(WM_NCDESTROY, AfxSig_vv<&ThisClass::OnNcDestroy>)
#define ON_WM_CLOSE() AFX_WM_ENTRY(WM_CLOSE, AfxSig_vv<&ThisClass::OnClose>)
#define ON_WM_QUERYENDSESSION() AFX_WM_ENTRY(WM_QUERYENDSESSION, AfxSig_bv<&ThisClass::OnQueryEndSession>)
#define ON_WM_MOVE() AFX_WM_ENTRY(WM_MOVE, AfxSig_vii<&ThisClass::OnMove>)
#define ON_WM_SIZE() AFX_WM_ENTRY(WM_SIZE, AfxSig_vwii<&ThisClass::OnSize>)
#define ON_WM_GETMINMAXINFO() AFX_WM_ENTRY(WM_GETMINMAXINFO, AfxSig_vS<&ThisClass::OnGetMinMaxInfo, MINMAXINFO>)
#define ON_WM_ACTIVATE() AFX_WM_ENTRY(WM_ACTIVATE, AfxSig_vwWb<&ThisClass::OnActivate>)
#define ON_WM_SETFOCUS() AFX_WM_ENTRY(WM_SETFOCUS, AfxSig_vW<&ThisClass::OnSetFocus>)
#define ON_WM_KILLFOCUS() AFX_WM_ENTRY(WM_KILLFOCUS, AfxSig_vW<&ThisClass::OnKillFocus>)
#define ON_WM_ENABLE() AFX_WM_ENTRY(WM_ENABLE, AfxSig_vb<&ThisClass::OnEnable>)
#define ON_WM_SHOWWINDOW() AFX_WM_ENTRY(WM_SHOWWINDOW, AfxSig_vbw<&ThisClass::OnShowWindow>)
#define ON_WM_PAINT() AFX_WM_ENTRY(WM_PAINT, AfxSig_vv<&ThisClass::OnPaint>)
#define ON_WM_ERASEBKGND() AFX_WM_ENTRY(WM_ERASEBKGND, AfxSig_bD<&ThisClass::OnEraseBkgnd>)
#define ON_WM_CTLCOLOR() AFX_WM_ENTRY(WM_CTLCOLOR, AfxSig_hDWw<&ThisClass::OnCtlColor>)
#define ON_WM_SETCURSOR() AFX_WM_ENTRY(WM_SETCURSOR, AfxSig_bWww<&ThisClass::OnSetCursor>)
#define ON_WM_CONTEXTMENU() AFX_WM_ENTRY(WM_CONTEXTMENU, AfxSig_vWp<&ThisClass::OnContextMenu>)
#define ON_WM_INITMENUPOPUP() AFX_WM_ENTRY(WM_INITMENUPOPUP, AfxSig_vMwb<&ThisClass::OnInitMenuPopup>)
#define ON_WM_SYSCOMMAND() AFX_WM_ENTRY(WM_SYSCOMMAND, AfxSig_vwl<&ThisClass::OnSysCommand>)
#define ON_WM_TIMER() AFX_WM_ENTRY(WM_TIMER, AfxSig_vu<&ThisClass::OnTimer>)
#define ON_WM_DRAWITEM() AFX_WM_ENTRY(WM_DRAWITEM, AfxSig_viS<&ThisClass::OnDrawItem, DRAWITEMSTRUCT>)
#define ON_WM_KEYDOWN() AFX_WM_ENTRY(WM_KEYDOWN, AfxSig_vwww<&ThisClass::OnKeyDown>)
#define ON_WM_KEYUP() AFX_WM_ENTRY(WM_KEYUP, AfxSig_vwww<&ThisClass::OnKeyUp>)
#define ON_WM_CHAR() AFX_WM_ENTRY(WM_CHAR, AfxSig_vwww<&ThisClass::OnChar>)
#define ON_WM_MOUSEMOVE() AFX_WM_ENTRY(WM_MOUSEMOVE, AfxSig_vwp<&ThisClass::OnMouseMove>)
#define ON_WM_LBUTTONDOWN() AFX_WM_ENTRY(WM_LBUTTONDOWN, AfxSig_vwp<&ThisClass::OnLButtonDown>)
#define ON_WM_LBUTTONUP() AFX_WM_ENTRY(WM_LBUTTONUP, AfxSig_vwp<&ThisClass::OnLButtonUp>)
