#include "TabPage.h"

bool TabPage::Create(CWnd* container)
{
    return CDialog::Create(m_nTemplate, container) != FALSE;
}

int TabPage::NeededHeight()
{
    if (m_nNeededHeight == 0) {
        LayoutPlan plan(*this);
        PlanLayout(plan);
        m_nNeededHeight = plan.Height();
    }
    return m_nNeededHeight;
}

void TabPage::MoveTo(const CRect& area)
{
    MoveWindow(&area);
    LayoutControls();
}

void TabPage::Show()
{
    LayoutNow();
    ShowWindow(SW_SHOW);
}

bool TabPage::Walk(HWND, WPARAM)
{
    return false;
}

void TabPage::LayoutControls()
{
    if ((GetStyle() & WS_VISIBLE) != 0)
        LayoutNow();
}

// Moving a page can send it WM_SIZE, on which it may lay itself out too.
void TabPage::LayoutNow()
{
    CRect client;
    GetClientRect(&client);
    const SIZE size = client.Size();
    if (m_laidOut == size)
        return;
    m_laidOut = size;
    LayoutPlan plan(*this);
    PlanLayout(plan);
    plan.Apply();
}

void TabPage::OnOK()
{
    PostToContainer(IDOK);
}

void TabPage::OnCancel()
{
    PostToContainer(IDCANCEL);
}

void TabPage::PostToContainer(WPARAM command) const
{
    if (const CWnd* container = GetParent())
        ::PostMessageW(container->m_hWnd, WM_COMMAND, command, 0);
}
