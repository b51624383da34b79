#include "RemoveDevicesDialog.h"

#include "RemoveDevicesControls.h"
#include "text/EditorText.h"

namespace {

constexpr EditorDialog::Caption Captions[] = {
    {0, IDS_REMOVE_TITLE},
    {IDC_REMOVE_LABEL_DEVICES, IDS_REMOVE_DEVICES},
    {IDC_REMOVE_HINT, IDS_REMOVE_HINT},
    {IDOK, IDS_REMOVE_OK},
};

constexpr int ColumnDescription = 2;

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_NUMBER, 30, LVCFMT_RIGHT},
    {IDS_COLUMN_NAME, 80},
    {IDS_COLUMN_DESCRIPTION, 100},
    {IDS_COLUMN_VARIABLES, 50, LVCFMT_RIGHT},
};

std::wstring Cell(const RemovedDevice& device, int column)
{
    const std::wstring cells[] = {device.number, device.name, device.description, std::to_wstring(device.variables)};
    return cells[column];
}

}  // namespace

RemoveDevicesDialog::RemoveDevicesDialog(CWnd* parent, std::vector<RemovedDevice> devices)
    : EditorDialog(IDD_REMOVE_DEVICES, parent, Captions), m_devices(std::move(devices))
{
}

void RemoveDevicesDialog::DoDataExchange(CDataExchange* pDX)
{
    EditorDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_REMOVE_DEVICES, m_lstDevices);
}

void RemoveDevicesDialog::PlanPage(KZLayout& page)
{
    AddLabelled(page, IDC_REMOVE_LABEL_DEVICES, IDC_REMOVE_DEVICES);
    AddRow(page, KZSizeTextLine).AddControl(IDC_REMOVE_HINT, 100);
    AddButtons(page, {0, IDOK, IDCANCEL});
}

BOOL RemoveDevicesDialog::OnInitDialog()
{
    if (!EditorDialog::OnInitDialog())
        return FALSE;
    m_lstDevices.SetUp(Columns, ColumnDescription,
                       [this](int row, int column) { return Cell(m_devices[static_cast<std::size_t>(row)], column); });
    m_lstDevices.ShowRows(static_cast<int>(m_devices.size()));
    GotoDlgCtrl(GetDlgItem(IDOK));
    return FALSE;
}
