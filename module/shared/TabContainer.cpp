#include "TabContainer.h"

#include "HostText.h"
#include "KZStringIds.h"
#include "TabImages.h"

namespace {

// A flag that is up for the length of a scope.
class Raised {
public:
    explicit Raised(bool& flag) noexcept : m_flag(flag) { m_flag = true; }
    ~Raised() { m_flag = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& m_flag;
};

}  // namespace

void TabContainer::SetImages(CImageList& images, std::initializer_list<const wchar_t*> fileNames)
{
    CreateTabImages(images, fileNames);
    m_tab.SetImageList(&images);
}

void TabContainer::Add(TabPage& page, const KZBasicString& text, int image)
{
    m_pages.push_back(&page);
    m_tab.InsertItem(m_tab.GetItemCount(), text.c_str(), image);
}

void TabContainer::Clear() noexcept
{
    m_current = nullptr;
    m_pages.clear();
}

void TabContainer::ShowSelected()
{
    if (m_current)
        m_current->ShowWindow(SW_HIDE);
    const int tab = m_tab.GetCurSel();
    const bool hasPage = tab >= 0 && static_cast<std::size_t>(tab) < m_pages.size();
    m_current = hasPage ? m_pages[static_cast<std::size_t>(tab)] : nullptr;
    if (!m_current)
        return;
    m_current->Show();
    m_current->BringWindowToTop();
    m_current->Invalidate(TRUE);
}

void TabContainer::Layout(LayoutPlan& plan, int tabHeight)
{
    {
        const Raised layingOut(m_layingOut);
        plan.FitAndApply();
    }
    const CRect area = PageArea(tabHeight);
    for (TabPage* page : m_pages)
        page->MoveTo(area);
    m_dialog.Invalidate(TRUE);
}

int TabContainer::ControlHeight(int tabHeight, int pageHeight)
{
    return KZLayout::Pixels2Size(tabHeight + 3 * ::GetSystemMetrics(SM_CYEDGE) + pageHeight).cy;
}

// The tab control's rectangle without its edges and its tabs, in client coordinates of the dialog.
CRect TabContainer::PageArea(int tabHeight) const
{
    const int edgeX = ::GetSystemMetrics(SM_CXEDGE);
    const int edgeY = ::GetSystemMetrics(SM_CYEDGE);
    CRect area;
    m_tab.GetWindowRect(&area);
    area.left += edgeX;
    area.top += tabHeight + 2 * edgeY;
    area.right -= edgeX;
    area.bottom -= edgeY;
    m_dialog.ScreenToClient(&area);
    return area;
}

bool TabContainer::ForwardCommand(WPARAM wParam, LPARAM lParam) const
{
    auto* const control = reinterpret_cast<HWND>(lParam);
    const HWND page = control ? ::GetParent(control) : nullptr;
    if (!page || !::IsChild(m_dialog.m_hWnd, page))
        return false;
    ::SendMessageW(page, WM_COMMAND, wParam, lParam);
    return true;
}

void TabContainer::GiveUp()
{
    AfxMessageBox(HostText(KZS_PAGES_NOT_OPENED).c_str(), MB_OK, 0);
    m_dialog.EndDialog(-1);
}
