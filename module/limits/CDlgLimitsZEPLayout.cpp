// Where the limits dialog puts its tab control, its pages and its buttons.
#include "CDlgLimitsArmonicZEP.h"
#include "CDlgLimitsZEP.h"
#include "LimitsControls.h"
#include "Raised.h"
#include "TabPages.h"

void CDlgLimitsZEP::Layout()
{
    // Fitting the height sends WM_SIZE, which comes here again: the outer call finishes with the new client area.
    if (m_bLayingOut)
        return;
    {
        const Raised layingOut(m_bLayingOut);
        LayoutTabAndButtons();
    }

    const CRect area = TabPageArea(*this, m_tab, TabItemHeight());
    for (const auto& page : m_pages)
        page->MoveTo(area);
    Invalidate(TRUE);
}

int CDlgLimitsZEP::TabItemHeight() const
{
    CRect item(0, 0, 0, 0);
    m_tab.GetItemRect(0, &item);
    return item.Height();
}

// The harmonic pages are the higher ones, and both are alike.
void CDlgLimitsZEP::LayoutTabAndButtons()
{
    const int tabHeight = m_pages[1]->PreferredHeight() + TabItemHeight() + 3 * ::GetSystemMetrics(SM_CYEDGE);

    LayoutPlan plan(*this);
    KZLayout& tab = plan.NewRow();
    tab.AddGap(KZSizeStandard);
    tab.AddControl(IDC_LIMITS_TAB, 100);
    tab.AddGap(KZSizeStandard);

    KZLayout& buttons = plan.NewRow();
    buttons.AddGap(KZSizeStandard);
    buttons.AddGap(15);
    buttons.AddControl(IDOK, 35);
    buttons.AddGap(KZSizeStandard);
    buttons.AddControl(IDCANCEL, 35);
    buttons.AddGap(15);
    buttons.AddGap(KZSizeStandard);

    KZLayout& dialog = plan.Root();
    dialog.AddGap(KZSizeStandard);
    dialog.AddLayout(tab, KZLayout::Pixels2Size(tabHeight).cy);
    dialog.AddGap(KZSizeStandard);
    dialog.AddLayout(buttons, KZSizeStandard);
    dialog.AddGap(KZSizeStandard);
    plan.FitAndApply();
}
