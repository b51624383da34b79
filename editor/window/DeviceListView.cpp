#include "DeviceListView.h"

#include <commctrl.h>

#include <algorithm>

#include "text/EditorText.h"

namespace {

enum Column : int { ColumnNumber, ColumnName, ColumnModel, ColumnDescription, ColumnModule };

// Widths in dialog units; the description takes the rest.
struct ColumnRow {
    unsigned caption;
    int width;
    int format;
};
constexpr ColumnRow columns[] = {
    {IDS_COLUMN_NUMBER, 26, LVCFMT_LEFT}, {IDS_COLUMN_NAME, 80, LVCFMT_LEFT},
    {IDS_COLUMN_MODEL, 115, LVCFMT_LEFT}, {IDS_COLUMN_DESCRIPTION, 120, LVCFMT_LEFT},
    {IDS_COLUMN_MODULE, 75, LVCFMT_LEFT},
};

int PixelsOf(HWND list, int dialogUnits) noexcept
{
    RECT units{0, 0, dialogUnits, 0};
    ::MapDialogRect(::GetParent(list), &units);
    return units.right;
}

}  // namespace

void DeviceListView::Fill(HWND list, const Project& project, const ModuleLoader& modules)
{
    m_list = list;
    ListView_SetExtendedListViewStyle(m_list, LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP | LVS_EX_DOUBLEBUFFER);
    AddColumns();
    int row = 0;
    for (const Device& device : project.Devices())
        AddRow(row++, device, modules.StatusOf(device));
    FitColumns();
}

void DeviceListView::AddColumns()
{
    int index = 0;
    for (const ColumnRow& row : columns) {
        std::wstring caption = EditorText(row.caption);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
        column.fmt = row.format;
        column.cx = PixelsOf(m_list, row.width);
        column.pszText = caption.data();
        ::SendMessageW(m_list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index++), reinterpret_cast<LPARAM>(&column));
    }
}

void DeviceListView::AddRow(int row, const Device& device, const ModuleStatus& status)
{
    const KZDriver& driver = *device.driver;
    LVITEMW item{};
    item.iItem = row;
    ::SendMessageW(m_list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    SetText(row, ColumnNumber, std::to_wstring(driver.Number()).c_str());
    SetText(row, ColumnName, driver.Name().c_str());
    SetText(row, ColumnModel, KZQuorvelantaSetup::Get()->DriverName(driver.TypeName().c_str()).c_str());
    SetText(row, ColumnDescription, driver.Description().c_str());
    SetText(row, ColumnModule, ModuleStateName(status.state).c_str());
}

void DeviceListView::SetText(int row, int column, const wchar_t* text) noexcept
{
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text);  // the control copies it
    ::SendMessageW(m_list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

int DeviceListView::Selected() const noexcept
{
    return m_list ? ListView_GetNextItem(m_list, -1, LVNI_SELECTED) : -1;
}

void DeviceListView::Select(int row) noexcept
{
    ListView_SetItemState(m_list, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(m_list, row, FALSE);
}

void DeviceListView::FitColumns() noexcept
{
    if (!m_list)
        return;
    RECT client{};
    ::GetClientRect(m_list, &client);
    int rest = client.right;
    for (int column = 0; column < static_cast<int>(std::size(columns)); ++column)
        rest -= column == ColumnDescription ? 0 : ListView_GetColumnWidth(m_list, column);
    ListView_SetColumnWidth(m_list, ColumnDescription, std::max(rest, PixelsOf(m_list, 60)));
}
