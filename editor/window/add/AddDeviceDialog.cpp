#include "AddDeviceDialog.h"

#include "AddDeviceControls.h"
#include "modules/DeviceType.h"
#include "text/EditorText.h"

namespace {

constexpr EditorDialog::Caption Captions[] = {
    {0, IDS_ADD_TITLE},
    {IDC_ADD_LABEL_NUMBER, IDS_LABEL_NUMBER},
    {IDC_ADD_LABEL_NAME, IDS_LABEL_NAME},
    {IDC_ADD_LABEL_DESCRIPTION, IDS_LABEL_DESCRIPTION},
    {IDC_ADD_LABEL_MODEL, IDS_LABEL_MODEL},
    {IDC_ADD_LABEL_GROUPS, IDS_LABEL_GROUPS},
    {IDC_ADD_LABEL_RATIO, IDS_LABEL_RATIO},
    {IDOK, IDS_ADD_OK},
};

// By plant::DeviceEntry.
constexpr int Controls[] = {IDC_ADD_NAME,  IDC_ADD_NUMBER, IDC_ADD_DESCRIPTION,
                            IDC_ADD_MODEL, IDC_ADD_GROUPS, IDC_ADD_RATIO};

}  // namespace

AddDeviceDialog::AddDeviceDialog(CWnd* parent, plant::NewDevice proposed, Judge judge)
    : EditorDialog(IDD_ADD_DEVICE, parent, Captions), m_device(std::move(proposed)), m_judge(std::move(judge))
{
}

void AddDeviceDialog::DoDataExchange(CDataExchange* pDX)
{
    EditorDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_ADD_MODEL, m_cmbModel);
    Exchange(pDX, IDC_ADD_NUMBER, m_device.number);
    Exchange(pDX, IDC_ADD_NAME, m_device.name);
    Exchange(pDX, IDC_ADD_DESCRIPTION, m_device.description);
    Exchange(pDX, IDC_ADD_GROUPS, m_device.groups);
    Exchange(pDX, IDC_ADD_RATIO, m_device.transformerRatio);
    if (pDX->m_bSaveAndValidate && m_cmbModel.GetCurSel() >= 0)
        m_device.typeName = DeviceTypes()[static_cast<std::size_t>(m_cmbModel.GetCurSel())].name;
}

void AddDeviceDialog::PlanPage(KZLayout& page)
{
    AddField(page, IDC_ADD_LABEL_NUMBER, IDC_ADD_NUMBER);
    AddField(page, IDC_ADD_LABEL_NAME, IDC_ADD_NAME);
    AddField(page, IDC_ADD_LABEL_DESCRIPTION, IDC_ADD_DESCRIPTION);
    AddField(page, IDC_ADD_LABEL_MODEL, IDC_ADD_MODEL);
    AddField(page, IDC_ADD_LABEL_GROUPS, IDC_ADD_GROUPS);
    AddField(page, IDC_ADD_LABEL_RATIO, IDC_ADD_RATIO, IDC_ADD_SECONDARY);
    AddButtons(page, {0, IDOK, IDCANCEL});
}

BOOL AddDeviceDialog::OnInitDialog()
{
    if (!EditorDialog::OnInitDialog())
        return FALSE;
    for (const DeviceType& type : DeviceTypes()) {
        const int row = m_cmbModel.AddString(KZQuorvelantaSetup::Get()->DriverName(type.name).c_str());
        if (m_device.typeName == type.name)
            m_cmbModel.SetCurSel(row);
    }
    GotoDlgCtrl(GetDlgItem(IDC_ADD_NAME));
    return FALSE;
}

void AddDeviceDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndUnlessRefused(m_judge(m_device), Controls);
}
