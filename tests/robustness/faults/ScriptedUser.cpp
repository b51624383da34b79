#include "ScriptedUser.h"

#include "Controls.h"
#include "DeviceControls.h"
#include "LimitsControls.h"
#include "MemoryFaults.h"
#include "SelectVarControls.h"
#include "UnitsControls.h"

namespace {

constexpr int MessageTextId = 0xFFFF;
// Controls of the dialogs in which this user changes something.

HWND FindControl(HWND dialog, int id)
{
    for (const HWND control : DescendantsOf(dialog))
        if (::GetDlgCtrlID(control) == id)
            return control;
    return nullptr;
}

}  // namespace

ScriptedUser::ScriptedUser(OptionalSection section, bool confirms)
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

void ScriptedUser::Work(HWND dialog, DialogKind kind)
{
    const int visit = ++m_visits[static_cast<std::size_t>(kind)];
    if (visit == 1 && kind == DialogKind::Hub && m_section) {
        ClickSection(dialog, *m_section);
        return;
    }
    if (visit == 1)
        Change(dialog, kind);
    const int patience = m_confirms || kind == DialogKind::Hub ? 2 : 1;
    ::PostMessageW(dialog, WM_COMMAND, visit <= patience ? IDOK : IDCANCEL, 0);
}

void ScriptedUser::Change(HWND dialog, DialogKind kind)
{
    const auto click = [&](int id) { ::PostMessageW(FindControl(dialog, id), BM_CLICK, 0, 0); };
    switch (kind) {
    case DialogKind::Device:
        click(IDC_MODE);
        break;
    case DialogKind::Units:
        click(IDC_APPARENT_DEC_3);
        break;
    case DialogKind::Limits:
        ::SendMessageW(FindControl(dialog, IDC_AP_NOMINAL), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"5"));
        break;
    case DialogKind::Selection:
        click(IDC_NET_COLUMN);
        break;
    default:
        break;
    }
}
