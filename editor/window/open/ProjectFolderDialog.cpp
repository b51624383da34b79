#include "ProjectFolderDialog.h"

#include "FolderBrowser.h"
#include "ProjectFolderControls.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"

namespace {

constexpr EditorDialog::Caption OpenCaptions[] = {
    {0, IDS_OPEN_TITLE},
    {IDC_FOLDER_LABEL_PATH, IDS_OPEN_FOLDER},
    {IDC_FOLDER_BROWSE, IDS_FOLDER_BROWSE},
    {IDC_FOLDER_LABEL_RECENT, IDS_OPEN_RECENT},
    {IDOK, IDS_OPEN_OK},
};
constexpr EditorDialog::Caption NewCaptions[] = {
    {0, IDS_NEW_TITLE},
    {IDC_FOLDER_LABEL_PATH, IDS_NEW_FOLDER},
    {IDC_FOLDER_BROWSE, IDS_FOLDER_BROWSE},
    {IDOK, IDS_NEW_OK},
};
constexpr EditorDialog::Caption CopyCaptions[] = {
    {0, IDS_COPY_TITLE},
    {IDC_FOLDER_LABEL_PATH, IDS_COPY_FOLDER},
    {IDC_FOLDER_BROWSE, IDS_FOLDER_BROWSE},
    {IDOK, IDS_COPY_OK},
};

std::span<const EditorDialog::Caption> CaptionsFor(FolderPurpose purpose)
{
    switch (purpose) {
    case FolderPurpose::Open:
        return OpenCaptions;
    case FolderPurpose::New:
        return NewCaptions;
    default:
        return CopyCaptions;
    }
}

constexpr int ColumnFolder = 1;

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_PROJECT, 80},
    {IDS_COLUMN_FOLDER, 120},
};

}  // namespace

BEGIN_MESSAGE_MAP(ProjectFolderDialog, EditorDialog)
    ON_BN_CLICKED(IDC_FOLDER_BROWSE, &ProjectFolderDialog::OnBrowse)
    ON_NOTIFY(NM_SETFOCUS, IDC_FOLDER_RECENT, &ProjectFolderDialog::OnEnterRecent)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_FOLDER_RECENT, &ProjectFolderDialog::OnMarkRecent)
    ON_NOTIFY(NM_DBLCLK, IDC_FOLDER_RECENT, &ProjectFolderDialog::OnOpenRecent)
END_MESSAGE_MAP()

ProjectFolderDialog::ProjectFolderDialog(CWnd* parent, FolderPurpose purpose, std::vector<std::wstring> recent,
                                         Judge judge)
    : EditorDialog(IDD_PROJECT_FOLDER, parent, CaptionsFor(purpose)), m_purpose(purpose), m_recent(std::move(recent)),
      m_judge(std::move(judge))
{
}

void ProjectFolderDialog::DoDataExchange(CDataExchange* pDX)
{
    EditorDialog::DoDataExchange(pDX);
    Exchange(pDX, IDC_FOLDER_PATH, m_path);
}

void ProjectFolderDialog::PlanPage(KZLayout& page)
{
    AddRow(page, KZSizeTextLine).AddControl(IDC_FOLDER_LABEL_PATH, 100);
    KZLayout& path = AddRow(page, KZSizeNatural, KZSizeEditLine);
    path.AddControl(IDC_FOLDER_PATH, 100);
    path.AddGap(KZSizeStandard);
    path.AddControl(IDC_FOLDER_BROWSE, KZSizeNatural);
    if (m_purpose == FolderPurpose::Open)
        AddLabelled(page, IDC_FOLDER_LABEL_RECENT, IDC_FOLDER_RECENT);
    AddButtons(page, {0, IDOK, IDCANCEL});
}

BOOL ProjectFolderDialog::OnInitDialog()
{
    if (m_purpose == FolderPurpose::Open) {
        m_lstRecent.SubclassDlgItem(IDC_FOLDER_RECENT, this);
    } else {
        GetDlgItem(IDC_FOLDER_LABEL_RECENT)->DestroyWindow();
        GetDlgItem(IDC_FOLDER_RECENT)->DestroyWindow();
        ModifyStyle(WS_THICKFRAME, 0);
    }
    if (!EditorDialog::OnInitDialog())
        return FALSE;
    if (m_purpose == FolderPurpose::Open) {
        m_lstRecent.SetUp(Columns, ColumnFolder, [this](int row, int column) {
            const std::wstring& folder = m_recent[static_cast<std::size_t>(row)];
            return column == ColumnFolder ? folder : plant::Path(folder).filename().wstring();
        });
        m_lstRecent.ShowRows(static_cast<int>(m_recent.size()));
    }
    return TRUE;
}

void ProjectFolderDialog::OnBrowse()
{
    UpdateData(TRUE);
    const std::wstring chosen = BrowseForFolder(*this, m_path);
    if (!chosen.empty())
        SetDlgItemText(IDC_FOLDER_PATH, chosen.c_str());
}

// What was typed is not for Tab to overwrite.
void ProjectFolderDialog::OnEnterRecent(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (GetDlgItem(IDC_FOLDER_PATH)->GetWindowTextLength() == 0 && !m_recent.empty())
        m_lstRecent.MarkOnly(0);
}

void ProjectFolderDialog::OnMarkRecent(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (const int row = m_lstRecent.Marked(); row >= 0)
        SetDlgItemText(IDC_FOLDER_PATH, m_recent[static_cast<std::size_t>(row)].c_str());
}

void ProjectFolderDialog::OnOpenRecent(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (m_lstRecent.Marked() >= 0)
        OnOK();
}

void ProjectFolderDialog::OnOK()
{
    if (!UpdateData(TRUE))
        return;
    if (m_path.empty()) {
        RefuseEntry(IDC_FOLDER_PATH, EditorText(IDS_FOLDER_EMPTY));
        return;
    }
    try {
        m_folder = std::filesystem::absolute(m_path);
        m_judge(m_folder);
    } catch (const plant::Refusal& refusal) {
        RefuseEntry(IDC_FOLDER_PATH, PlantMessage(refusal.What()));
        return;
    }
    EndDialog(IDOK);
}
