#include "FrameLayout.h"

#include <commctrl.h>

#include <algorithm>

#include "KZLayout.h"
#include "resources/EditorIds.h"

namespace {

constexpr int Whole = 1000;
constexpr int SmallestShare = 200;
constexpr int SmallestFindings = 150;
constexpr int LargestFindings = 600;

// In dialog units.
constexpr int Margin = 4;
constexpr int BarWidth = 4;
constexpr int CaptionHeight = 9;
constexpr CSize SmallestClient{470, 230};

CRect Units(const CWnd& window, CSize units)
{
    CRect pixels(0, 0, units.cx, units.cy);
    ::MapDialogRect(window.m_hWnd, &pixels);
    return pixels;
}

// What is left above the status bar.
CRect Area(const CWnd& window)
{
    CRect client;
    window.GetClientRect(&client);
    CRect status;
    window.GetDlgItem(IDC_STATUS_BAR)->GetWindowRect(&status);
    client.bottom -= status.Height();
    const CRect margin = Units(window, {Margin, Margin});
    client.DeflateRect(margin.right, margin.bottom);
    return client;
}

CRect InsideOfTabs(const CWnd& window)
{
    CRect inside;
    const CWnd* tabs = window.GetDlgItem(IDC_PAGES);
    tabs->GetWindowRect(&inside);
    window.ScreenToClient(&inside);
    tabs->SendMessage(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(static_cast<LPRECT>(inside)));
    const CRect margin = Units(window, {Margin, Margin});
    inside.DeflateRect(margin.right, margin.bottom);
    return inside;
}

}  // namespace

void FrameLayout::SetListShare(int share) noexcept
{
    m_nListShare = std::clamp(share, SmallestShare, Whole - SmallestShare);
}

void FrameLayout::SetFindingsShare(int share) noexcept
{
    m_nFindingsShare = std::clamp(share, SmallestFindings, LargestFindings);
}

bool FrameLayout::MoveListBar(const CWnd& window, int pixels)
{
    const int before = m_nListShare;
    CRect list;
    CRect tabs;
    window.GetDlgItem(IDC_DEVICES)->GetWindowRect(&list);
    window.GetDlgItem(IDC_PAGES)->GetWindowRect(&tabs);
    const int width = std::max(1, list.Width() + tabs.Width());
    SetListShare(((list.Width() + pixels) * Whole + width / 2) / width);
    return m_nListShare != before;
}

bool FrameLayout::MoveFindingsBar(const CWnd& window, int pixels)
{
    const int before = m_nFindingsShare;
    CRect list;
    CRect findings;
    window.GetDlgItem(IDC_DEVICES)->GetWindowRect(&list);
    window.GetDlgItem(IDC_FINDINGS)->GetWindowRect(&findings);
    const int height = std::max(1, list.Height() + findings.Height());
    SetFindingsShare(((findings.Height() - pixels) * Whole + height / 2) / height);
    return m_nFindingsShare != before;
}

void FrameLayout::Arrange(CWnd& window) const
{
    // The status bar finds its own place.
    window.GetDlgItem(IDC_STATUS_BAR)->SendMessage(WM_SIZE);

    KZHoritzontalLayout find(&window);
    find.AddControl(IDC_FIND_LABEL, KZSizeNatural);
    find.AddGap(KZSizeEditLine);
    find.AddControl(IDC_FIND, 3);
    find.AddControl(IDC_FIND_CLEAR, KZLayout::Pixels2Size(Units(window, {14, 14}).right).cx);
    find.AddGap(KZSizeStandard);
    find.AddControl(IDC_FIND_COUNT, 2);
    find.AddGap(KZSizeStandard);
    find.AddControl(IDC_SELECT, KZSizeNatural);
    find.AddGap(KZSizeStandard);
    find.AddControl(IDC_OPTIONS, KZSizeNatural);

    KZHoritzontalLayout panes(&window);
    panes.AddControl(IDC_DEVICES, m_nListShare);
    panes.AddControl(IDC_LIST_BAR, KZLayout::Pixels2Size(Units(window, {BarWidth, 0}).right).cx);
    panes.AddControl(IDC_PAGES, Whole - m_nListShare);

    KZVerticalLayout frame(&window);
    frame.AddLayout(find, KZSizeNatural);
    frame.AddGap(KZSizeStandard);
    frame.AddLayout(panes, Whole - m_nFindingsShare);
    KZHoritzontalLayout heading(&window);
    if (m_bFindings) {
        heading.AddControl(IDC_FINDINGS_LABEL, 1);
        heading.AddControl(IDC_FINDINGS_CLOSE, KZLayout::Pixels2Size(Units(window, {14, 14}).right).cx);
        frame.AddControl(IDC_FINDINGS_BAR, KZLayout::Pixels2Size(Units(window, {0, BarWidth}).bottom).cy);
        frame.AddLayout(heading, KZSizeNatural);
        frame.AddControl(IDC_FINDINGS, m_nFindingsShare);
    }
    frame.Layout(Area(window));

    CRect status;
    window.GetDlgItem(IDC_STATUS_BAR)->GetWindowRect(&status);
    window.ScreenToClient(&status);
    KZHoritzontalLayout cancel(&window);
    cancel.AddGap(1);
    cancel.AddControl(IDC_CANCEL_CHECK, KZSizeNatural);
    cancel.AddGap(KZLayout::Pixels2Size(::GetSystemMetrics(SM_CXVSCROLL)).cx);
    status.top += 2;  // the bar's own border
    cancel.Layout(status);

    CRect caption = InsideOfTabs(window);
    caption.bottom = caption.top + Units(window, {0, CaptionHeight}).bottom;
    window.GetDlgItem(IDC_PAGE_CAPTION)->MoveWindow(caption);
}

CSize FrameLayout::Smallest(const CWnd& window)
{
    return Units(window, SmallestClient).Size();
}

CRect FrameLayout::PageArea(const CWnd& window)
{
    CRect page = InsideOfTabs(window);
    page.top = std::min(page.bottom, page.top + Units(window, {0, CaptionHeight + Margin}).bottom);
    return page;
}
