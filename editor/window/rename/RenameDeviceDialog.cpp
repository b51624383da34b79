#include "RenameDeviceDialog.h"

#include "RenameDeviceControls.h"

namespace {

constexpr EditorDialog::Caption Captions[] = {
    {0, IDS_RENAME_TITLE},
    {IDC_RENAME_LABEL_NUMBER, IDS_LABEL_NUMBER},
    {IDC_RENAME_LABEL_NAME, IDS_LABEL_NAME},
    {IDC_RENAME_LABEL_DESCRIPTION, IDS_LABEL_DESCRIPTION},
    {IDOK, IDS_RENAME_OK},
};

// By plant::DeviceEntry.
constexpr int Controls[] = {IDC_RENAME_NAME, IDC_RENAME_NUMBER, IDC_RENAME_DESCRIPTION};

}  // namespace

RenameDeviceDialog::RenameDeviceDialog(CWnd* parent, plant::DeviceNaming naming, Judge judge)
    : EditorDialog(IDD_RENAME_DEVICE, parent, Captions), m_naming(std::move(naming)), m_judge(std::move(judge))
{
}

void RenameDeviceDialog::DoDataExchange(CDataExchange* pDX)
{
    EditorDialog::DoDataExchange(pDX);
    Exchange(pDX, IDC_RENAME_NUMBER, m_naming.number);
    Exchange(pDX, IDC_RENAME_NAME, m_naming.name);
    Exchange(pDX, IDC_RENAME_DESCRIPTION, m_naming.description);
}

void RenameDeviceDialog::PlanPage(KZLayout& page)
{
    AddField(page, IDC_RENAME_LABEL_NUMBER, IDC_RENAME_NUMBER);
    AddField(page, IDC_RENAME_LABEL_NAME, IDC_RENAME_NAME);
    AddField(page, IDC_RENAME_LABEL_DESCRIPTION, IDC_RENAME_DESCRIPTION);
    AddButtons(page, {0, IDOK, IDCANCEL});
}

BOOL RenameDeviceDialog::OnInitDialog()
{
    if (!EditorDialog::OnInitDialog())
        return FALSE;
    GotoDlgCtrl(GetDlgItem(IDC_RENAME_NAME));
    return FALSE;
}

void RenameDeviceDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndUnlessRefused(m_judge(m_naming), Controls);
}
