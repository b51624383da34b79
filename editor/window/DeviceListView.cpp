#include "DeviceListView.h"

#include "text/EditorText.h"

namespace {

enum Column : int { ColumnNumber, ColumnName, ColumnModel, ColumnDescription, ColumnModule };

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_NUMBER, 26},      {IDS_COLUMN_NAME, 80},   {IDS_COLUMN_MODEL, 115},
    {IDS_COLUMN_DESCRIPTION, 60}, {IDS_COLUMN_MODULE, 75},
};

}  // namespace

void DeviceListView::Fill(const plant::Project& project, const ModuleLoader& modules)
{
    m_pProject = &project;
    m_pModules = &modules;
    SetColumns(Columns, ColumnDescription);
    Refresh();
    FitColumns();
}

void DeviceListView::Refresh()
{
    SetItemCount(static_cast<int>(m_pProject->Devices().size()));
    Invalidate();
}

std::wstring DeviceListView::Text(int row, int column) const
{
    const KZDeviceIdentity& device = m_pProject->Devices()[static_cast<std::size_t>(row)];
    switch (column) {
    case ColumnNumber:
        return std::to_wstring(device.number);
    case ColumnName:
        return device.name.c_str();
    case ColumnModel:
        return KZQuorvelantaSetup::Get()->DriverName(device.typeName.c_str()).c_str();
    case ColumnDescription:
        return device.description.c_str();
    default:
        return ModuleStateName(m_pModules->StatusOf(device.typeName).state);
    }
}

void DeviceListView::GiveText(LVITEMW& item) const
{
    // A question about what was just read anew comes before the list knows of it.
    const bool isThere = item.iItem < static_cast<int>(m_pProject->Devices().size());
    if ((item.mask & LVIF_TEXT) != 0 && isThere)
        ::lstrcpynW(item.pszText, Text(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
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
        const std::wstring number = Text(row, ColumnNumber);
        if ((wanted.lvfi.flags & LVFI_PARTIAL) != 0 ? number.starts_with(wanted.lvfi.psz) : number == wanted.lvfi.psz)
            return row;
    }
    return -1;
}

void DeviceListView::Select(int row)
{
    SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EnsureVisible(row, FALSE);
}

void DeviceListView::LeaveRow(WORD key)
{
    const int row = Selected();
    const bool goesUp = key == VK_UP || key == VK_PRIOR || key == VK_HOME;
    const bool goesDown = key == VK_DOWN || key == VK_NEXT || key == VK_END;
    const bool goes = (goesUp && row > 0) || (goesDown && row >= 0 && row < GetItemCount() - 1);
    // With Ctrl, Windows moves the focus alone, and the next key starts from there.
    if (goes && row == GetNextItem(-1, LVNI_FOCUSED) && ::GetKeyState(VK_CONTROL) >= 0)
        SetItemState(row, 0, LVIS_SELECTED);
}
