// Where the select-variables dialog puts its tab control, its pages and its buttons.
#include <algorithm>

#include "CDlgSelectVarArmonicZEP.h"
#include "CDlgSelectVarZEP.h"
#include "LayoutPlan.h"
#include "Raised.h"
#include "SelectVarControls.h"
#include "TabPages.h"

void CDlgSelectVarZEP::Layout(int, int)
{
    // Fitting the height sends WM_SIZE, which comes here again: the outer call finishes with the new client area.
    if (m_pages.empty() || m_bLayingOut)
        return;
    {
        const Raised layingOut(m_bLayingOut);
        LayoutTabAndButtons();
    }

    // The height of the tabs comes from the control's own arithmetic, its edges and its empty display area.
    const CRect area = TabPageArea(*this, m_tab, TabExtraHeight());
    for (const auto& page : m_pages)
        page->MoveTo(area);
    Invalidate(TRUE);
}

int CDlgSelectVarZEP::PageHeight() const
{
    int height = 0;
    for (const auto& page : m_pages)
        height = std::max(height, page->RequiredHeight());
    return height;
}

// What the tabs and the frame take of the tab control's height: the display area of an empty rectangle comes out inside
// out by just that much.
int CDlgSelectVarZEP::TabExtraHeight()
{
    CRect rect(0, 0, 0, 0);
    m_tab.AdjustRect(FALSE, &rect);
    return rect.top - rect.bottom;
}

void CDlgSelectVarZEP::LayoutTabAndButtons()
{
    const int tabHeight = TabExtraHeight() + 3 * ::GetSystemMetrics(SM_CYEDGE) + PageHeight();

    LayoutPlan plan(*this);
    KZLayout& dialog = plan.Root();
    dialog.SetBorders(KZSizeStandard, KZSizeStandard);
    dialog.AddGap(KZSizeStandard);
    dialog.AddControl(IDC_SELECTVAR_TAB, KZLayout::Pixels2Size(tabHeight).cy);
    dialog.AddGap(KZSizeStandard);
    dialog.AddLayout(plan.NewOkCancelRow(), KZSizeStandard);
    dialog.AddGap(KZSizeStandard);
    plan.FitAndApply();
}
