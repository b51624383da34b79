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
BOOL AfxSigNotify_v(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, args.pNotify->pNMHDR, args.pNotify->pResult);
    return TRUE;
}
#define AFX_CMD_ENTRY(code, first, last, thunk)                                                                        \
    {WM_COMMAND, static_cast<WORD>(code), static_cast<UINT>(first), static_cast<UINT>(last), &thunk},
#define AFX_NOTIFY_ENTRY(code, first, last, thunk)                                                                     \
    {WM_NOTIFY, static_cast<WORD>(code), static_cast<UINT>(first), static_cast<UINT>(last), &thunk},

#define ON_COMMAND(id, memberFxn) AFX_CMD_ENTRY(CN_COMMAND, id, id, AfxSigCmd_v<memberFxn>)
#define ON_COMMAND_RANGE(id, idLast, memberFxn) AFX_CMD_ENTRY(CN_COMMAND, id, idLast, AfxSigCmd_RANGE<memberFxn>)
#define ON_CONTROL(wNotifyCode, id, memberFxn) AFX_CMD_ENTRY(wNotifyCode, id, id, AfxSigCmd_v<memberFxn>)
#define ON_NOTIFY(wNotifyCode, id, memberFxn) AFX_NOTIFY_ENTRY(wNotifyCode, id, id, AfxSigNotify_v<memberFxn>)
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)

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
BOOL AfxSig_vwii(CCmdTarget* target, AFX_MSGARGS& args)
{
    afx::Call<Handler>(target, static_cast<UINT>(args.wParam), afx::LowCoordinate(args.lParam),
                       afx::HighCoordinate(args.lParam));
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
#define AFX_WM_ENTRY(message, ...) {message, 0, 0, 0, &__VA_ARGS__},

#define ON_MESSAGE(message, memberFxn) AFX_WM_ENTRY(message, AfxSig_lwl<memberFxn>)
#define ON_WM_DESTROY() AFX_WM_ENTRY(WM_DESTROY, AfxSig_vv<&ThisClass::OnDestroy>)
#define ON_WM_NCDESTROY() AFX_WM_ENTRY(WM_NCDESTROY, AfxSig_vv<&ThisClass::OnNcDestroy>)
#define ON_WM_CLOSE() AFX_WM_ENTRY(WM_CLOSE, AfxSig_vv<&ThisClass::OnClose>)
#define ON_WM_SIZE() AFX_WM_ENTRY(WM_SIZE, AfxSig_vwii<&ThisClass::OnSize>)
#define ON_WM_GETMINMAXINFO() AFX_WM_ENTRY(WM_GETMINMAXINFO, AfxSig_vS<&ThisClass::OnGetMinMaxInfo, MINMAXINFO>)
#define ON_WM_SYSCOLORCHANGE() AFX_WM_ENTRY(WM_SYSCOLORCHANGE, AfxSig_vv<&ThisClass::OnSysColorChange>)
#define ON_WM_CTLCOLOR() AFX_WM_ENTRY(WM_CTLCOLOR, AfxSig_hDWw<&ThisClass::OnCtlColor>)
