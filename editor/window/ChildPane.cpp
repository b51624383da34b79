#include "ChildPane.h"

#include "KZDlgOptions.h"
#include "text/EditorText.h"

namespace {

constexpr UINT moveOnly = SWP_NOZORDER | SWP_NOACTIVATE;

}  // namespace

BEGIN_MESSAGE_MAP(ChildPane, CDialog)
    ON_WM_CTLCOLOR()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_MESSAGE(WM_KZ_OPTIONS_CHANGED, &ChildPane::OnOptionsChanged)
END_MESSAGE_MAP()

void ChildPane::DestroyChild::operator()(CDialog* dialog) const
{
    dialog->DestroyWindow();
    delete dialog;
}

bool ChildPane::CreateInPlaceOf(CWnd& parent, int control)
{
    const HWND place = ::GetDlgItem(parent.m_hWnd, control);
    if (!CreateIn(parent))
        return false;
    RECT rectangle{};
    ::GetWindowRect(place, &rectangle);
    ::MapWindowPoints(nullptr, parent.m_hWnd, reinterpret_cast<POINT*>(&rectangle), 2);
    ::SetWindowPos(m_hWnd, place, rectangle.left, rectangle.top, rectangle.right - rectangle.left,
                   rectangle.bottom - rectangle.top, SWP_NOACTIVATE);
    ::DestroyWindow(place);
    ::SetWindowLongPtrW(m_hWnd, GWLP_ID, control);
    return true;
}

bool ChildPane::CreateIn(CWnd& parent)
{
    if (!Create(IDD_CHILD_PANE, &parent))
        return false;
    ::ShowWindow(m_hWnd, SW_SHOW);
    return true;
}

bool ChildPane::Embed(KZDriver* driver, KZChildOptionsFactory factory)
{
    m_child.reset();
    m_child.reset(factory ? factory(this, driver) : nullptr);
    if (!m_child) {
        ShowText(EditorText(IDS_PANE_NO_DIALOG));
        return false;
    }
    ::ShowWindow(::GetDlgItem(m_hWnd, IDC_PANE_TEXT), SW_HIDE);
    Arrange();
    ::ShowWindow(m_child->m_hWnd, SW_SHOWNA);
    return true;
}

void ChildPane::ShowText(const std::wstring& text)
{
    m_child.reset();
    ::SetDlgItemTextW(m_hWnd, IDC_PANE_TEXT, text.c_str());
    ::ShowWindow(::GetDlgItem(m_hWnd, IDC_PANE_TEXT), SW_SHOWNA);
}

void ChildPane::Arrange()
{
    RECT client{};
    ::GetClientRect(m_hWnd, &client);
    if (m_child)
        ::SetWindowPos(m_child->m_hWnd, nullptr, 0, 0, client.right, client.bottom, moveOnly);
    RECT margin{0, 0, 7, 7};
    ::MapDialogRect(m_hWnd, &margin);
    ::SetWindowPos(::GetDlgItem(m_hWnd, IDC_PANE_TEXT), nullptr, margin.right, margin.bottom,
                   client.right - 2 * margin.right, client.bottom - 2 * margin.bottom, moveOnly);
}

void ChildPane::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    Arrange();
}

void ChildPane::OnDestroy()
{
    m_child.reset();
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
