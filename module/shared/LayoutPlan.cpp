#include "LayoutPlan.h"

LayoutPlan::LayoutPlan(CWnd& dialog) : m_dialog(dialog), m_root(&dialog) {}

KZLayout& LayoutPlan::NewRow()
{
    return m_rows.emplace_back();
}

KZLayout& LayoutPlan::NewColumn()
{
    return m_columns.emplace_back();
}

KZLayout& LayoutPlan::NewBox(int groupId)
{
    KZLayout& box = NewColumn();
    box.SetBoxControl(groupId, KZSizeStandard, true);
    return box;
}

KZLayout& LayoutPlan::NewOkCancelRow()
{
    KZLayout& row = NewRow();
    row.AddGap(KZSizeCentringGap);
    row.AddControl(IDOK, 50);
    row.AddGap(KZSizeStandard);
    row.AddControl(IDCANCEL, 50);
    row.AddGap(KZSizeCentringGap);
    return row;
}

int LayoutPlan::Height() const
{
    return m_root.FixedSize().cy;
}

void LayoutPlan::Apply() const
{
    CRect client;
    m_dialog.GetClientRect(&client);
    m_root.Layout(client);
}

void LayoutPlan::FitAndApply()
{
    CRect client;
    CRect window;
    m_dialog.GetClientRect(&client);
    m_dialog.GetWindowRect(&window);
    const int difference = Height() - client.Height();
    if (difference != 0)
        m_dialog.SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() + difference,
                              SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Apply();
}
