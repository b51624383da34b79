#include "TabContainer.h"

#include <utility>

#include "CaughtException.h"
#include "ControlText.h"
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
    m_images = &images;
    m_imageFiles = fileNames;
    m_imageCount = CreateTabImages(images, m_imageFiles);
    m_tab.SetImageList(&images);
}

// The tabs keep their pictures when there is no memory for new ones.
void TabContainer::LoadImages() noexcept
{
    try {
        CImageList fresh;
        if (CreateTabImages(fresh, m_imageFiles) < m_imageCount)
            return;
        m_tab.SendMessage(TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(fresh.GetSafeHandle()));
        m_images->DeleteImageList();
        m_images->Attach(fresh.Detach());
    } catch (...) {
        TakeException();
    }
}

void TabContainer::Add(TabPage& page, const KZBasicString& text, int image)
{
    m_pages.push_back({&page, text});
    m_tab.InsertItem(m_tab.GetItemCount(), text.c_str(), image);
}

void TabContainer::Clear() noexcept
{
    m_current = nullptr;
    m_pages.clear();
}

void TabContainer::ShowSelected()
{
    TabPage* const previous = m_current;
    const bool hadFocus = previous && ::IsChild(previous->m_hWnd, ::GetFocus());
    const auto tab = static_cast<std::size_t>(m_tab.GetCurSel());  // none is beyond all
    m_current = tab < m_pages.size() ? m_pages[tab].page : nullptr;
    if (m_current) {
        m_current->Show();
        m_current->BringWindowToTop();
        m_current->Invalidate(TRUE);
    }
    // Before the page is hidden: Windows would give its focus to the dialog, and a screen reader would read that out.
    if (hadFocus && m_current != previous) {
        const HWND target = m_current ? ::GetNextDlgTabItem(m_current->m_hWnd, nullptr, FALSE) : m_tab.m_hWnd;
        m_dialog.SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
    }
    if (previous && previous != m_current)
        previous->ShowWindow(SW_HIDE);
}

void TabContainer::Attach()
{
    DialogNeeds needs;
    needs.tabs = m_tab.m_hWnd;
    needs.beforeShown = [this] { OrderForTab(); };
    needs.nameControls = [this](AccessibleNames& names) {
        names.Set(m_tab.m_hWnd, ControlText(m_dialog).c_str());
        for (const Tab& tab : m_pages)
            tab.page->NameControls(names, tab.title);
    };
    needs.followColours = [this] { LoadImages(); };
    needs.walk = [this](HWND control, WPARAM key) {
        return m_current && ::IsChild(m_current->m_hWnd, control) && m_current->Walk(control, key);
    };
    m_access.Attach(m_dialog.m_hWnd, std::move(needs));
}

// The Tab key follows the order in depth. The page must lie above the tab control, or that would paint over it; so the
// tabs come last, and the walk goes round: tabs, page, OK, Cancel.
void TabContainer::OrderForTab() const
{
    ::SetWindowPos(m_tab.m_hWnd, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    if (m_current)
        m_current->BringWindowToTop();
}

void TabContainer::Layout(LayoutPlan& plan, int tabHeight)
{
    {
        const Raised layingOut(m_layingOut);
        plan.FitAndApply();
    }
    const CRect area = PageArea(tabHeight);
    for (const Tab& tab : m_pages)
        tab.page->MoveTo(area);
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
