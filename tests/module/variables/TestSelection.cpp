#include "TestSelection.h"

#include "SelectVarControls.h"
#include "SelectVarMessages.h"
#include "SelectionTables.h"

namespace {

constexpr UINT RunNextStep = WM_APP + 1;

}  // namespace

INT_PTR TestSelection::Run(std::initializer_list<Step> steps)
{
    m_steps = steps;
    m_next = 0;
    return DoModal();
}

LRESULT TestSelection::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == RunNextStep) {
        if (m_next == m_steps.size()) {
            EndDialog(StillOpen);
            return 0;
        }
        m_steps[m_next++]();
        PostMessage(RunNextStep);
        return 0;
    }
    if (message == WM_SHOWWINDOW && wParam && m_next == 0)
        PostMessage(RunNextStep);
    const LRESULT answer = CDlgSelectVarZEP::WindowProc(message, wParam, lParam);
    if (message == WM_SELECTVAR_SELECT || message == WM_SELECTVAR_UNSELECT)
        notes.push_back({message, wParam, lParam, answer});
    return answer;
}

HWND TestSelection::Page(zep::Family family) const
{
    const int caption = TableOf(family).caption;
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (::GetDlgItem(child, caption))
            return child;
    }
    return nullptr;
}

HWND TestSelection::Box(zep::Family family, const zep::VariablePosition& position) const
{
    return Control(family, TableOf(family).BoxId(position));
}

void TestSelection::ShowTab(int index)
{
    ::SendDlgItemMessageW(m_hWnd, IDC_SELECTVAR_TAB, TCM_SETCURFOCUS, static_cast<WPARAM>(index), 0);
}

std::wstring TestSelection::Text(zep::Family family, int id) const
{
    std::array<wchar_t, 512> text{};
    ::GetWindowTextW(Control(family, id), text.data(), static_cast<int>(text.size()));
    return text.data();
}

int TestSelection::CountChecked(zep::Family family) const
{
    const auto& table = TableOf(family);
    int count = 0;
    for (int row = 0; row < table.RowCount(); ++row) {
        for (const zep::Side side : zep::Sides) {
            for (int phase = 0; phase < zep::PhaseCount; ++phase) {
                const zep::VariablePosition position{row, phase, side};
                if (table.HasBox(position) && IsChecked(family, table.BoxId(position)))
                    ++count;
            }
        }
    }
    return count;
}

void TestSelection::Type(WORD key)
{
    const HWND focus = ::GetFocus();
    ::PostMessageW(focus, WM_KEYDOWN, key, 1);
    ::PostMessageW(focus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}
