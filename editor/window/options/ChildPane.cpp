#include "ChildPane.h"

#include <commctrl.h>

#include "text/EditorText.h"

namespace {

constexpr UINT_PTR ColoursTimer = 1;
constexpr UINT MoveOnly = SWP_NOZORDER | SWP_NOACTIVATE;

}  // namespace

BEGIN_MESSAGE_MAP(ChildPane, CDialog)
    ON_WM_CTLCOLOR()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_MESSAGE(WM_KZ_OPTIONS_CHANGED, &ChildPane::OnOptionsChanged)
    ON_MESSAGE(WM_SYSCOLORCHANGE, &ChildPane::OnColours)
    ON_MESSAGE(WM_THEMECHANGED, &ChildPane::OnColours)
    ON_MESSAGE(WM_TIMER, &ChildPane::OnTimer)
END_MESSAGE_MAP()

void ChildPane::DestroyChild::operator()(CDialog* dialog) const
{
    dialog->DestroyWindow();
    delete dialog;
}

bool ChildPane::CreateIn(CWnd& parent)
{
    if (!Create(IDD_CHILD_PANE, &parent))
        return false;
    SetDlgCtrlID(IDC_PANE);
    return true;
}

bool ChildPane::Embed(KZDriver* driver, KZChildOptionsFactory factory)
{
    m_pDriver = driver;
    m_factory = factory;
    m_pChild.reset();
    m_pChild.reset(factory ? factory(this, driver) : nullptr);
    if (!m_pChild) {
        ShowText(EditorText(IDS_PANE_NO_DIALOG));
        return false;
    }
    if (m_around)
        ::SetWindowSubclass(m_pChild->m_hWnd, ChildProcedure, 0, reinterpret_cast<DWORD_PTR>(this));
    GetDlgItem(IDC_PANE_TEXT)->ShowWindow(SW_HIDE);
    Arrange();
    m_pChild->ShowWindow(SW_SHOWNA);
    return true;
}

LRESULT ChildPane::OnColours(WPARAM, LPARAM)
{
    if (m_pChild)
        ::SetTimer(m_hWnd, ColoursTimer, 100, nullptr);
    return Default();
}

// While a dialog is open in front, the embedded one may be in the middle of a command: the timer comes again.
LRESULT ChildPane::OnTimer(WPARAM, LPARAM)
{
    if (!::IsWindowEnabled(::GetAncestor(m_hWnd, GA_ROOT)))
        return 0;
    ::KillTimer(m_hWnd, ColoursTimer);
    if (!m_pChild)
        return 0;
    const HWND focus = ::GetFocus();
    const int focused = ::IsChild(*m_pChild, focus) ? ::GetDlgCtrlID(focus) : 0;
    if (Embed(m_pDriver, m_factory) && focused != 0)
        m_pChild->GotoDlgCtrl(m_pChild->GetDlgItem(focused));
    return 0;
}

// A section runs inside the command of its button.
LRESULT CALLBACK ChildPane::ChildProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                           DWORD_PTR pane)
{
    LRESULT result = 0;
    const auto handle = [&] { result = ::DefSubclassProc(window, message, wParam, lParam); };
    if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED)
        reinterpret_cast<const ChildPane*>(pane)->m_around(handle);
    else
        handle();
    // What is left in front of a window outlives it in memory.
    if (message == WM_NCDESTROY)
        ::RemoveWindowSubclass(window, ChildProcedure, 0);
    return result;
}

void ChildPane::ShowText(const std::wstring& text)
{
    m_pChild.reset();
    SetDlgItemText(IDC_PANE_TEXT, text.c_str());
    GetDlgItem(IDC_PANE_TEXT)->ShowWindow(SW_SHOWNA);
}

void ChildPane::PressSection(KZOptionsSection section)
{
    CWnd* const button = m_pChild ? m_pChild->GetDlgItem(KZSectionButtonBase + section) : nullptr;
    if (!button)
        return;
    button->SetFocus();
    button->PostMessage(BM_CLICK);
}

void ChildPane::Arrange()
{
    CRect client;
    GetClientRect(&client);
    if (m_pChild)
        m_pChild->SetWindowPos(nullptr, 0, 0, client.Width(), client.Height(), MoveOnly);
    CRect margin(0, 0, 7, 7);
    MapDialogRect(&margin);
    client.DeflateRect(margin.Width(), margin.Height());
    // Null when Windows tells the pane its size before it makes the controls.
    if (CWnd* text = GetDlgItem(IDC_PANE_TEXT))
        text->SetWindowPos(nullptr, client.left, client.top, client.Width(), client.Height(), MoveOnly);
}

void ChildPane::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    Arrange();
}

void ChildPane::OnDestroy()
{
    m_pChild.reset();
    CDialog::OnDestroy();
}

HBRUSH ChildPane::OnCtlColor(CDC* pDC, CWnd*, UINT)
{
    pDC->SetBkColor(::GetSysColor(COLOR_WINDOW));
    pDC->SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    return ::GetSysColorBrush(COLOR_WINDOW);
}

LRESULT ChildPane::OnOptionsChanged(WPARAM wParam, LPARAM lParam)
{
    return GetParent()->SendMessage(WM_KZ_OPTIONS_CHANGED, wParam, lParam);
}
