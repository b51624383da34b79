#include "DeviceListView.h"

#include <set>

#include "text/EditorText.h"

namespace {

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_SIGNS, 28},       {IDS_COLUMN_NUMBER, 22, LVCFMT_RIGHT}, {IDS_COLUMN_NAME, 54},
    {IDS_COLUMN_DESCRIPTION, 44}, {IDS_COLUMN_CHOSEN, 22, LVCFMT_RIGHT}, {IDS_COLUMN_MODEL, 50},
};
static_assert(std::size(Columns) == DeviceColumnCount);

}  // namespace

BEGIN_MESSAGE_MAP(DeviceListView, RowList)
    ON_MESSAGE(WM_PAINT, &DeviceListView::OnPaint)
    ON_MESSAGE(WM_CONTEXTMENU, &DeviceListView::OnContextMenu)
END_MESSAGE_MAP()

LRESULT DeviceListView::OnPaint(WPARAM, LPARAM)
{
    m_bPainting = true;
    const LRESULT result = Default();
    m_bPainting = false;
    return result;
}

// It is the menu of the window around it.
LRESULT DeviceListView::OnContextMenu(WPARAM, LPARAM)
{
    return Default();
}

void DeviceListView::SetUp()
{
    RowList::SetUp(Columns, static_cast<int>(DeviceColumn::Description),
                   [this](int row, int column) { return Text(row, column); });
    SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_HEADERDRAGDROP);
    TellWhole(static_cast<int>(DeviceColumn::Signs));
    ShowSortArrow();
}

void DeviceListView::Show(DeviceRows* rows)
{
    m_pRows = rows;
    m_nSorted = -1;
    m_bDescending = false;
    ShowSortArrow();
    SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    SetItemCount(rows ? static_cast<int>(rows->Shown().size()) : 0);
    Invalidate();
}

void DeviceListView::Refresh(const std::vector<KZBasicString>& marked, const plant::Project& project)
{
    const std::set<KZBasicString> wanted(marked.begin(), marked.end());
    SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    const int rows = static_cast<int>(m_pRows->Shown().size());
    SetItemCount(rows);
    int first = -1;
    for (int row = 0; row < rows && !wanted.empty(); ++row) {
        if (!wanted.contains(project.Devices()[DeviceOf(row)].driverId))
            continue;
        const UINT focus = first < 0 ? LVIS_FOCUSED : 0;
        SetItemState(row, LVIS_SELECTED | focus, LVIS_SELECTED | focus);
        if (first < 0)
            first = row;
    }
    if (first >= 0)
        EnsureVisible(first, FALSE);
    Invalidate();
}

void DeviceListView::SortBy(int column)
{
    m_bDescending = column == m_nSorted && !m_bDescending;
    m_nSorted = column;
    m_pRows->Sort(static_cast<DeviceColumn>(column), m_bDescending);
    ShowSortArrow();
}

void DeviceListView::ShowSortArrow()
{
    const auto header = reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER));
    for (int column = 0; column < DeviceColumnCount; ++column) {
        HDITEMW item{};
        item.mask = HDI_FORMAT;
        ::SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
        item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        if (column == m_nSorted)
            item.fmt |= m_bDescending ? HDF_SORTDOWN : HDF_SORTUP;
        ::SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
    }
}

bool DeviceListView::IsMarked(int row) const
{
    return SendMessage(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0;
}

// Each sign has its place, so that they stand below each other.
std::wstring DeviceListView::Signs(int row) const
{
    const DeviceSigns signs = m_pRows->SignsOf(DeviceOf(row));
    std::wstring text;
    text += IsMarked(row) ? L'>' : L' ';
    text += signs.isChanged ? L'*' : L' ';
    text += signs.hasFindings ? L'!' : L' ';
    text += signs.hasNoModule ? L'#' : L' ';
    return text;
}

std::wstring DeviceListView::SignWords(int row) const
{
    const DeviceSigns signs = m_pRows->SignsOf(DeviceOf(row));
    const struct {
        bool holds;
        unsigned text;
    } words[] = {
        {IsMarked(row), IDS_SIGN_MARKED},
        {signs.isChanged, IDS_SIGN_CHANGED},
        {signs.hasFindings, IDS_SIGN_FINDINGS},
        {signs.hasNoModule, IDS_SIGN_NO_MODULE},
    };
    std::wstring text;
    for (const auto& word : words)
        if (word.holds)
            text.append(text.empty() ? L"" : L", ").append(EditorText(word.text));
    return text;
}

std::wstring DeviceListView::Text(int row, int column) const
{
    // A question about what was just read anew comes before the list knows of it.
    if (!m_pRows || row < 0 || row >= static_cast<int>(m_pRows->Shown().size()))
        return {};
    const auto kind = static_cast<DeviceColumn>(column);
    if (kind == DeviceColumn::Signs)
        return m_bPainting ? Signs(row) : SignWords(row);
    return m_pRows->Text(DeviceOf(row), kind);
}

int DeviceListView::Find(const NMLVFINDITEMW& wanted) const
{
    const int rows = GetItemCount();
    if ((wanted.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0)
        return -1;
    for (int step = 0; step < rows; ++step) {
        const int row = (wanted.iStart + step) % rows;
        if (row < wanted.iStart && (wanted.lvfi.flags & LVFI_WRAP) == 0)
            return -1;
        const std::wstring number = m_pRows->Text(DeviceOf(row), DeviceColumn::Number);
        if ((wanted.lvfi.flags & LVFI_PARTIAL) != 0 ? number.starts_with(wanted.lvfi.psz) : number == wanted.lvfi.psz)
            return row;
    }
    return -1;
}

std::vector<std::size_t> DeviceListView::MarkedPlaces() const
{
    std::vector<std::size_t> marked;
    if (!m_pRows)
        return marked;
    const int rows = static_cast<int>(m_pRows->Shown().size());
    for (int row = GetNextItem(-1, LVNI_SELECTED); row >= 0 && row < rows; row = GetNextItem(row, LVNI_SELECTED))
        marked.push_back(DeviceOf(row));
    return marked;
}

void DeviceListView::SelectNext(int step)
{
    const int row = GetNextItem(-1, LVNI_FOCUSED) + step;
    if (row >= 0 && row < GetItemCount())
        MarkOnly(row);
}

void DeviceListView::LeaveRow(WORD key)
{
    const int row = GetNextItem(-1, LVNI_SELECTED);
    const bool goesUp = key == VK_UP || key == VK_PRIOR || key == VK_HOME;
    const bool goesDown = key == VK_DOWN || key == VK_NEXT || key == VK_END;
    const bool goes = (goesUp && row > 0) || (goesDown && row >= 0 && row < GetItemCount() - 1);
    // With Ctrl the focus alone moves, with Shift the marks stay.
    const bool isPlain = ::GetKeyState(VK_CONTROL) >= 0 && ::GetKeyState(VK_SHIFT) >= 0;
    if (goes && MarkedCount() == 1 && row == GetNextItem(-1, LVNI_FOCUSED) && isPlain)
        SetItemState(row, 0, LVIS_SELECTED);
}
