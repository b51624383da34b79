#include "DeviceListView.h"

#include "text/EditorText.h"

namespace {

enum Column : int { ColumnNumber, ColumnName, ColumnModel, ColumnDescription, ColumnModule };

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_NUMBER, 26},      {IDS_COLUMN_NAME, 80},   {IDS_COLUMN_MODEL, 115},
    {IDS_COLUMN_DESCRIPTION, 60}, {IDS_COLUMN_MODULE, 75},
};

}  // namespace

void DeviceListView::Fill(const Project& project, const ModuleLoader& modules)
{
    SetColumns(Columns, ColumnDescription);
    SetRowCount(static_cast<int>(project.Devices().size()));
    int row = 0;
    for (const Device& device : project.Devices())
        ShowRow(row++, device, modules.StatusOf(device));
    FitColumns();
}

void DeviceListView::ShowRow(int row, const Device& device, const ModuleStatus& status)
{
    const KZDriver& driver = *device.driver;
    SetItemText(row, ColumnNumber, std::to_wstring(driver.Number()).c_str());
    SetItemText(row, ColumnName, driver.Name().c_str());
    SetItemText(row, ColumnModel, KZQuorvelantaSetup::Get()->DriverName(driver.TypeName().c_str()).c_str());
    SetItemText(row, ColumnDescription, driver.Description().c_str());
    SetItemText(row, ColumnModule, ModuleStateName(status.state).c_str());
}

void DeviceListView::Select(int row)
{
    SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EnsureVisible(row, FALSE);
}
