#include "DeviceListView.h"

#include <commctrl.h>

#include "text/EditorText.h"

namespace {

enum Column : int { ColumnNumber, ColumnName, ColumnModel, ColumnDescription, ColumnModule };

constexpr ReportColumn columns[] = {
    {IDS_COLUMN_NUMBER, 26},      {IDS_COLUMN_NAME, 80},   {IDS_COLUMN_MODEL, 115},
    {IDS_COLUMN_DESCRIPTION, 60}, {IDS_COLUMN_MODULE, 75},
};

}  // namespace

void DeviceListView::Fill(HWND list, const Project& project, const ModuleLoader& modules)
{
    m_list.Attach(list, columns, ColumnDescription);
    m_list.SetRowCount(static_cast<int>(project.Devices().size()));
    int row = 0;
    for (const Device& device : project.Devices())
        ShowRow(row++, device, modules.StatusOf(device));
    FitColumns();
}

void DeviceListView::ShowRow(int row, const Device& device, const ModuleStatus& status)
{
    const KZDriver& driver = *device.driver;
    m_list.SetCell(row, ColumnNumber, std::to_wstring(driver.Number()).c_str());
    m_list.SetCell(row, ColumnName, driver.Name().c_str());
    m_list.SetCell(row, ColumnModel, KZQuorvelantaSetup::Get()->DriverName(driver.TypeName().c_str()).c_str());
    m_list.SetCell(row, ColumnDescription, driver.Description().c_str());
    m_list.SetCell(row, ColumnModule, ModuleStateName(status.state).c_str());
}

int DeviceListView::Selected() const noexcept
{
    return m_list.Window() ? ListView_GetNextItem(m_list.Window(), -1, LVNI_SELECTED) : -1;
}

void DeviceListView::Select(int row) noexcept
{
    ListView_SetItemState(m_list.Window(), row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(m_list.Window(), row, FALSE);
}
