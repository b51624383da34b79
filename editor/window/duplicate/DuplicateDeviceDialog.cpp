#include "DuplicateDeviceDialog.h"

#include "DuplicateDeviceControls.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"

namespace {

// More at once would take long to look at after every key.
constexpr int CountDigits = 3;

constexpr EditorDialog::Caption Captions[] = {
    {0, IDS_DUPLICATE_TITLE},
    {IDC_DUPLICATE_LABEL_COUNT, IDS_DUPLICATE_COUNT},
    {IDC_DUPLICATE_LABEL_PATTERN, IDS_DUPLICATE_PATTERN},
    {IDC_DUPLICATE_LABEL_FIRST, IDS_DUPLICATE_FIRST},
    {IDC_DUPLICATE_LABEL_DESCRIPTION, IDS_LABEL_DESCRIPTION},
    {IDC_DUPLICATE_LABEL_DEVICES, IDS_DUPLICATE_DEVICES},
    {IDOK, IDS_DUPLICATE_OK},
};

enum Column : int { ColumnNumber, ColumnName, ColumnFinding };

constexpr ReportColumn Columns[] = {
    {IDS_COLUMN_NUMBER, 30, LVCFMT_RIGHT},
    {IDS_COLUMN_NAME, 80},
    {IDS_COLUMN_FINDING, 100},
};

}  // namespace

BEGIN_MESSAGE_MAP(DuplicateDeviceDialog, EditorDialog)
    ON_CONTROL(EN_CHANGE, IDC_DUPLICATE_COUNT, &DuplicateDeviceDialog::OnType)
    ON_CONTROL(EN_CHANGE, IDC_DUPLICATE_PATTERN, &DuplicateDeviceDialog::OnType)
    ON_CONTROL(EN_CHANGE, IDC_DUPLICATE_FIRST, &DuplicateDeviceDialog::OnType)
    ON_CONTROL(EN_CHANGE, IDC_DUPLICATE_DESCRIPTION, &DuplicateDeviceDialog::OnType)
END_MESSAGE_MAP()

DuplicateDeviceDialog::DuplicateDeviceDialog(CWnd* parent, DuplicateEntries proposed, Name name, Judge judge)
    : EditorDialog(IDD_DUPLICATE_DEVICE, parent, Captions), m_entries(std::move(proposed)), m_name(std::move(name)),
      m_judge(std::move(judge))
{
}

void DuplicateDeviceDialog::DoDataExchange(CDataExchange* pDX)
{
    EditorDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_DUPLICATE_DEVICES, m_lstDevices);
    Exchange(pDX, IDC_DUPLICATE_COUNT, m_entries.count);
    Exchange(pDX, IDC_DUPLICATE_PATTERN, m_entries.pattern);
    Exchange(pDX, IDC_DUPLICATE_FIRST, m_entries.firstNumber);
    Exchange(pDX, IDC_DUPLICATE_DESCRIPTION, m_entries.description);
}

void DuplicateDeviceDialog::PlanPage(KZLayout& page)
{
    AddField(page, IDC_DUPLICATE_LABEL_COUNT, IDC_DUPLICATE_COUNT);
    AddField(page, IDC_DUPLICATE_LABEL_PATTERN, IDC_DUPLICATE_PATTERN);
    AddField(page, IDC_DUPLICATE_LABEL_FIRST, IDC_DUPLICATE_FIRST);
    AddField(page, IDC_DUPLICATE_LABEL_DESCRIPTION, IDC_DUPLICATE_DESCRIPTION);
    AddLabelled(page, IDC_DUPLICATE_LABEL_DEVICES, IDC_DUPLICATE_DEVICES);
    AddButtons(page, {0, IDOK, IDCANCEL});
}

BOOL DuplicateDeviceDialog::OnInitDialog()
{
    if (!EditorDialog::OnInitDialog())
        return FALSE;
    ::SendDlgItemMessageW(m_hWnd, IDC_DUPLICATE_COUNT, EM_LIMITTEXT, CountDigits, 0);
    m_lstDevices.SetUp(Columns, ColumnFinding, [this](int row, int column) { return Cell(row, column); });
    ShowDevices();
    return TRUE;
}

std::wstring DuplicateDeviceDialog::Cell(int row, int column) const
{
    const auto index = static_cast<std::size_t>(row);
    if (column == ColumnNumber)
        return m_names[index].number;
    if (column == ColumnName)
        return m_names[index].name;
    const auto finding = m_findings.find(index);
    return finding == m_findings.end() ? std::wstring() : finding->second;
}

void DuplicateDeviceDialog::OnType()
{
    // The first texts come before there is a list.
    if (m_lstDevices.m_hWnd && UpdateData(TRUE))
        ShowDevices();
}

void DuplicateDeviceDialog::ShowDevices()
{
    const auto count = static_cast<std::size_t>(std::wcstoul(m_entries.count.c_str(), nullptr, 10));
    m_names = m_name(m_entries, count);
    m_findings.clear();
    for (const plant::EntryRefusal& refusal : m_judge(m_names))
        m_findings.emplace(refusal.row, PlantMessage(refusal.reason));
    m_lstDevices.ShowRows(static_cast<int>(m_names.size()));
    // Somebody who types many names sees the first that is refused.
    if (!m_findings.empty())
        m_lstDevices.EnsureVisible(static_cast<int>(m_findings.begin()->first), FALSE);
    GetDlgItem(IDOK)->EnableWindow(!m_names.empty() && m_findings.empty());
}
