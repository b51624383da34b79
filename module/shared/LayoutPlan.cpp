#include "LayoutPlan.h"

#include "KZDialogSetup.h"

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
    KZFitDialogHeight(m_dialog, m_root);
    Apply();
}
