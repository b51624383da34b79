// Where the select-variables dialog puts its tab control, its pages and its buttons.
#include <algorithm>

#include "CDlgSelectVarArmonicZEP.h"
#include "CDlgSelectVarZEP.h"
#include "KZDialogSetup.h"
#include "KZLayout.h"
#include "Raised.h"
#include "SelectVarControls.h"

void CDlgSelectVarZEP::Layout(int, int)
{
    // Fitting the height sends WM_SIZE, which comes here again: the outer call finishes with the new client area.
    if (m_pages.empty() || m_bLayingOut)
        return;
    {
        const Raised layingOut(m_bLayingOut);
        LayoutTabAndButtons();
    }

    const CRect area = PageArea();
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

    constexpr int buttonWidth = 50;
    KZHoritzontalLayout buttons;
    buttons.AddGap(KZSizeCentringGap);
    buttons.AddControl(IDOK, buttonWidth);
    buttons.AddGap(KZSizeStandard);
    buttons.AddControl(IDCANCEL, buttonWidth);
    buttons.AddGap(KZSizeCentringGap);

    KZVerticalLayout dialog(this);
    dialog.SetBorders(KZSizeStandard, KZSizeStandard);
    dialog.AddGap(KZSizeStandard);
    dialog.AddControl(IDC_SELECTVAR_TAB, KZLayout::Pixels2Size(tabHeight).cy);
    dialog.AddGap(KZSizeStandard);
    dialog.AddLayout(buttons, KZSizeStandard);
    dialog.AddGap(KZSizeStandard);

    KZFitDialogHeight(*this, dialog);
    CRect client;
    GetClientRect(&client);
    dialog.Layout(client);
}

// The tab control's own arithmetic, taken from its edges and its empty display area.
CRect CDlgSelectVarZEP::PageArea()
{
    CRect area;
    m_tab.GetWindowRect(&area);
    const int edgeX = ::GetSystemMetrics(SM_CXEDGE);
    const int edgeY = ::GetSystemMetrics(SM_CYEDGE);
    area.left += edgeX;
    area.top += TabExtraHeight() + 2 * edgeY;
    area.right -= edgeX;
    area.bottom -= edgeY;
    ScreenToClient(&area);
    return area;
}
