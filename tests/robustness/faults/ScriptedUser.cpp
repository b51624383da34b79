#include "ScriptedUser.h"

#include "Controls.h"
#include "MemoryFaults.h"

namespace {

constexpr int MessageTextId = 0xFFFF;
constexpr int FirstSectionId = 1200;

// A control that tells the dialog, and one whose click changes something.
struct Signs {
    int mark;
    int change;
};
constexpr Signs Dialogs[] = {{FirstSectionId, 0}, {8094, 8094}, {8049, 8071}, {5150, 0}, {6697, 6713}};
constexpr int ActivePowerNominal = 5370;

HWND FindControl(HWND dialog, int id)
{
    for (const HWND control : DescendantsOf(dialog))
        if (::GetDlgCtrlID(control) == id)
            return control;
    return nullptr;
}

}  // namespace

ScriptedUser::ScriptedUser(int section, bool confirms)
    : m_section(section), m_confirms(confirms), m_loop([this] { Step(); })
{
}

void ScriptedUser::Step()
{
    const MemoryFaults::Pause pause;
    const HWND top = TopDialogOfThread();
    if (!top)
        return;
    if (IsMessageBox(top)) {
        m_messages.push_back(kztest::TextOf(top, MessageTextId));
        ::PostMessageW(top, WM_COMMAND, static_cast<WPARAM>(::GetDlgItem(top, IDYES) ? IDYES : IDOK), 0);
    } else {
        Work(top, KindOf(top));
    }
    m_loop.Continue();
}

ScriptedUser::Kind ScriptedUser::KindOf(HWND dialog)
{
    int kind = Hub;
    while (kind != Unknown && !::GetDlgItem(dialog, Dialogs[kind].mark))
        ++kind;
    return static_cast<Kind>(kind);
}

void ScriptedUser::Work(HWND dialog, Kind kind)
{
    const int visit = ++m_visits[static_cast<std::size_t>(kind)];
    if (visit == 1 && kind == Hub && m_section >= 0) {
        ::PostMessageW(::GetDlgItem(dialog, FirstSectionId + m_section), BM_CLICK, 0, 0);
        return;
    }
    if (visit == 1)
        Change(dialog, kind);
    const int patience = m_confirms || kind == Hub ? 2 : 1;
    ::PostMessageW(dialog, WM_COMMAND, visit <= patience ? IDOK : IDCANCEL, 0);
}

void ScriptedUser::Change(HWND dialog, Kind kind)
{
    if (kind == Limits)
        ::SendMessageW(FindControl(dialog, ActivePowerNominal), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"5"));
    else if (kind != Unknown && Dialogs[kind].change != 0)
        ::PostMessageW(FindControl(dialog, Dialogs[kind].change), BM_CLICK, 0, 0);
}
