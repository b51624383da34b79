#include "LethalMessages.h"

#include <commctrl.h>

#include "StepLoop.h"

namespace {

constexpr const char* Pointer = "its parameters are pointers, which the system and its controls follow";
constexpr const char* Called = "a function pointer is in it, which the message loop calls";
constexpr const char* Gone = "it says that the window is gone while it is there";
constexpr const char* Twice = "it sets a window up that is set up already";
constexpr const char* Ends = "it ends the program or the session";
constexpr const char* Waits = "it waits for the user in a loop of the system's own";
constexpr const char* Internal = "it belongs to a library, which alone knows what it may carry";
constexpr const char* Grows = "it asks for as much memory as its parameters say";

struct Messages {
    UINT first;
    UINT last;
    const char* reason;
};

constexpr Messages ForAllWindows[] = {
    {WM_CREATE, WM_CREATE, Pointer},
    {WM_DESTROY, WM_DESTROY, Gone},
    {WM_SETTEXT, WM_GETTEXT, Pointer},
    {WM_QUERYENDSESSION, WM_QUIT, Ends},
    {WM_ENDSESSION, WM_ENDSESSION, Ends},
    {WM_SETTINGCHANGE, WM_DEVMODECHANGE, Pointer},
    {WM_GETMINMAXINFO, WM_GETMINMAXINFO, Pointer},
    {WM_DRAWITEM, WM_DELETEITEM, Pointer},
    {WM_COMPAREITEM, WM_COMPAREITEM, Pointer},
    {WM_WINDOWPOSCHANGING, WM_COPYDATA, Pointer},
    {WM_NOTIFY, WM_NOTIFY, Pointer},
    {WM_HELP, WM_HELP, Pointer},
    {WM_CONTEXTMENU, WM_CONTEXTMENU, Waits},
    {WM_STYLECHANGING, WM_STYLECHANGED, Pointer},
    {WM_NCCREATE, WM_NCCREATE, Pointer},
    {WM_NCDESTROY, WM_NCDESTROY, Gone},
    {WM_NCCALCSIZE, WM_NCCALCSIZE, Pointer},
    {WM_GETDLGCODE, WM_GETDLGCODE, Pointer},
    {WM_NCLBUTTONDOWN, WM_NCMBUTTONDBLCLK, Waits},
    {WM_IME_STARTCOMPOSITION, WM_IME_KEYLAST, Internal},
    {WM_INITDIALOG, WM_INITDIALOG, Twice},
    {WM_SYSCOMMAND, WM_SYSCOMMAND, Waits},
    {WM_TIMER, WM_TIMER, Called},
    {0x0118, 0x0118, Called},  // the system's own timers
    {WM_NEXTMENU, WM_SIZING, Pointer},
    {WM_MOVING, WM_MOVING, Pointer},
    {WM_DEVICECHANGE, WM_DEVICECHANGE, Pointer},
    {WM_MDICREATE, WM_MDIREFRESHMENU, Internal},
    {WM_IME_SETCONTEXT, WM_IME_KEYUP, Internal},
    {WM_ASKCBFORMATNAME, WM_ASKCBFORMATNAME, Pointer},
    {0x0360, 0x03FF, Internal},  // MFC's own and DDE
    {0x2000, 0x23FF, Internal},  // reflected messages and those of all common controls
};

constexpr Messages ForEdits[] = {{EM_GETSEL, EM_GETSEL, Pointer},
                                 {EM_GETRECT, EM_SETRECTNP, Pointer},
                                 {EM_SETHANDLE, EM_GETHANDLE, Internal},
                                 {EM_REPLACESEL, EM_GETLINE, Pointer},
                                 {EM_SETTABSTOPS, EM_SETTABSTOPS, Pointer},
                                 {EM_SETWORDBREAKPROC, EM_GETWORDBREAKPROC, Pointer},
                                 {WM_USER, WM_APP - 1, Pointer}};
constexpr Messages ForButtons[] = {{WM_USER, WM_APP - 1, Pointer}};
constexpr Messages ForTabs[] = {{WM_USER, WM_APP - 1, Pointer}};
constexpr Messages ForStatics[] = {{STM_SETICON, STM_GETIMAGE, Pointer}, {WM_USER, WM_APP - 1, Pointer}};
constexpr Messages ForLists[] = {{0x0140, 0x01CF, Pointer},  // CB_ and LB_
                                 {0x0161, 0x0161, Grows},
                                 {WM_USER, WM_APP - 1, Pointer}};

struct ClassMessages {
    const wchar_t* name;
    const Messages* first;
    const Messages* last;
};
constexpr ClassMessages ForClasses[] = {
    {L"Edit", std::begin(ForEdits), std::end(ForEdits)},      {L"Button", std::begin(ForButtons), std::end(ForButtons)},
    {WC_TABCONTROLW, std::begin(ForTabs), std::end(ForTabs)}, {L"Static", std::begin(ForStatics), std::end(ForStatics)},
    {L"ComboBox", std::begin(ForLists), std::end(ForLists)},  {L"ComboLBox", std::begin(ForLists), std::end(ForLists)}};

const char* Find(const Messages* first, const Messages* last, UINT message)
{
    for (; first != last; ++first)
        if (message >= first->first && message <= first->last)
            return first->reason;
    return nullptr;
}

}  // namespace

const char* WhyLethal(HWND window, UINT message)
{
    if (const char* const reason = Find(std::begin(ForAllWindows), std::end(ForAllWindows), message))
        return reason;
    for (const ClassMessages& messages : ForClasses)
        if (IsOfClass(window, messages.name))
            return Find(messages.first, messages.last, message);
    return nullptr;
}
