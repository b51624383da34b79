#include "TabPages.h"

CRect TabPageArea(const CWnd& dialog, const CTabCtrl& tab, int tabHeight)
{
    const int edgeX = ::GetSystemMetrics(SM_CXEDGE);
    const int edgeY = ::GetSystemMetrics(SM_CYEDGE);
    CRect area;
    tab.GetWindowRect(&area);
    area.left += edgeX;
    area.top += tabHeight + 2 * edgeY;
    area.right -= edgeX;
    area.bottom -= edgeY;
    dialog.ScreenToClient(&area);
    return area;
}
