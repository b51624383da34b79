#include "KZDeviceCfgZEP.h"

#include <algorithm>
#include <utility>

#include "ControlText.h"
#include "DeviceControls.h"
#include "DialogSetup.h"
#include "HostText.h"
#include "KZQuorvelantaSetup.h"
#include "KZStringIds.h"

using zep::InformationField;

namespace {

struct Label {
    int control;
    unsigned text;
};

constexpr Label Labels[] = {
    {IDC_IDENTITY_GROUP, KZS_DEVICE_INFORMATION},
    {IDC_NUMBER_LABEL, KZS_DEVICE_NUMBER},
    {IDC_IDENTIFIER_LABEL, KZS_DEVICE_IDENTIFIER},
    {IDC_DESCRIPTION_LABEL, KZS_DEVICE_DESCRIPTION},
    {IDC_MODEL_LABEL, KZS_DEVICE_MODEL},
    {IDC_VERSION_LABEL, KZS_DEVICE_VERSION},
    {IDC_SERIAL_NUMBER_LABEL, KZS_DEVICE_SERIAL_NUMBER},
    {IDC_GAMMA_LABEL, KZS_DEVICE_RANGE},
    {IDC_MODE_GROUP, KZS_WORKING_MODE},
    {IDC_FILTERS_GROUP, KZS_FILTERED_HARMONICS},
    {IDC_RATIO_GROUP, KZS_TRANSFORMER_RATIO},
    {IDC_ALGORITHM_GROUP, KZS_ALGORITHM},
    {IDC_UNITS_GROUP, KZS_NUMBER_OF_UNITS},
    {IDC_STATUS_GROUP, KZS_STATUS},
};

template <std::size_t Count>
void CheckBits(std::array<CButton, Count>& boxes, int bits)
{
    for (std::size_t i = 0; i < Count; ++i)
        boxes[i].SetCheck((bits >> i & 1) != 0 ? BST_CHECKED : BST_UNCHECKED);
}

template <std::size_t Count>
int CheckedBits(const std::array<CButton, Count>& boxes)
{
    int bits = 0;
    for (std::size_t i = 0; i < Count; ++i)
        bits |= boxes[i].GetCheck() == BST_CHECKED ? 1 << i : 0;
    return bits;
}

template <std::size_t Count>
void FillList(CComboBox& list, const std::array<unsigned, Count>& items, int choice)
{
    for (const unsigned item : items)
        list.AddString(HostText(item).c_str());
    if (choice >= 0)
        list.SetCurSel(choice);
}

KZBasicString MessageOf(const zep::InformationFailure& failure)
{
    return failure.bounds ? FormatHostText(failure.textId, failure.bounds->lowest, failure.bounds->highest)
                          : HostText(failure.textId);
}

// Hands a member of the dialog on as the window that it is.
template <auto Member>
CWnd& MemberOf(KZDeviceCfgZEP& dialog) noexcept
{
    return dialog.*Member;
}

// The wait cursor while a device is written, the arrow afterwards.
class WaitCursor {
public:
    WaitCursor() noexcept { ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT)); }
    ~WaitCursor() { ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW)); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

}  // namespace

// A control that shows a value, in the order in which they are bound.
struct KZDeviceCfgZEP::Field {
    int control;
    CWnd& (*window)(KZDeviceCfgZEP& dialog) noexcept;
    std::optional<InformationField> shown = std::nullopt;  // the child whose text it shows
    UINT length = 0;                                       // of what may be typed
    KZBasicString zep::InformationEntries::*entry = nullptr;

    static const std::array<Field, 9> All;
};

const std::array<KZDeviceCfgZEP::Field, 9> KZDeviceCfgZEP::Field::All{{
    {IDC_VERSION, MemberOf<&KZDeviceCfgZEP::m_stcVersion>, InformationField::Version},
    {IDC_MODEL, MemberOf<&KZDeviceCfgZEP::m_stcModel>},
    {IDC_SERIAL_NUMBER, MemberOf<&KZDeviceCfgZEP::m_stcSerialNumber>, InformationField::SerialNumber},
    {IDC_GAMMA, MemberOf<&KZDeviceCfgZEP::m_stcGamma>, InformationField::Gamma},
    {IDC_RATIO, MemberOf<&KZDeviceCfgZEP::m_edtRatio>, InformationField::TransformerRatio, 4,
     &zep::InformationEntries::transformerRatio},
    {IDC_CURRENT, MemberOf<&KZDeviceCfgZEP::m_edtCurrent>, InformationField::MinimumCurrent, 3,
     &zep::InformationEntries::minimumCurrent},
    {IDC_ALGORITHM, MemberOf<&KZDeviceCfgZEP::m_cmbAlgorithm>},
    {IDC_UNITS, MemberOf<&KZDeviceCfgZEP::m_edtUnits>, InformationField::UnitCount, 1,
     &zep::InformationEntries::unitCount},
    {IDC_STATUS, MemberOf<&KZDeviceCfgZEP::m_cmbStatus>},
}};

BEGIN_MESSAGE_MAP(KZDeviceCfgZEP, KZBaseDeviceCfg)
END_MESSAGE_MAP()

KZDeviceCfgZEP::KZDeviceCfgZEP(CWnd* parent, KZDriver* driver, XmlDocument::XmlNode* node)
    : KZBaseDeviceCfg(driver, IDD_DEVICE_CONFIGURATION, parent), m_pNode(node)
{
}

KZDeviceCfgZEP::~KZDeviceCfgZEP() = default;

void KZDeviceCfgZEP::DoDataExchange(CDataExchange* pDX)
{
    KZBaseDeviceCfg::DoDataExchange(pDX);
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
    DDX_Control(pDX, IDOK, m_btnOK);
    for (int i = 0; i < zep::ModeCount; ++i)
        DDX_Control(pDX, IDC_MODE + i, m_btnModes[static_cast<std::size_t>(i)]);
    for (int i = 0; i < zep::FilterCount; ++i)
        DDX_Control(pDX, IDC_FILTER + i, m_btnFilters[static_cast<std::size_t>(i)]);
    for (const Field& field : Field::All)
        DDX_Control(pDX, field.control, field.window(*this));
}

BOOL KZDeviceCfgZEP::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetIcon(LoadProgramIcon(), TRUE);
    SetTexts();
    SetUpOkCancel(m_btnOK, m_btnCancel);
    const zep::InformationRecord record(*Document()->Root());
    m_initial = record.Settings();
    ShowIdentity();
    ShowRecord(record);
    LayoutControls();
    UpdateData(FALSE);
    m_access.Attach(m_hWnd, {.nameControls = [this](AccessibleNames& names) { NameControls(names); }});
    return TRUE;
}

// Each field is called as the box around it.
void KZDeviceCfgZEP::NameControls(AccessibleNames& names) const
{
    constexpr std::pair<int, int> FieldsInBoxes[] = {
        {IDC_RATIO, IDC_RATIO_GROUP},     {IDC_STATUS, IDC_STATUS_GROUP}, {IDC_ALGORITHM, IDC_ALGORITHM_GROUP},
        {IDC_CURRENT, IDC_CURRENT_GROUP}, {IDC_UNITS, IDC_UNITS_GROUP},
    };
    for (const auto& [field, box] : FieldsInBoxes)
        names.Set(::GetDlgItem(m_hWnd, field), ControlText(m_hWnd, box).c_str());
}

void KZDeviceCfgZEP::SetTexts()
{
    const KZBasicString model = KZQuorvelantaSetup::Get()->DriverName(Driver()->TypeName().c_str());
    SetWindowText(FormatHostText(KZS_DEVICE_TITLE, model.c_str()).c_str());
    for (const Label& label : Labels)
        SetDlgItemText(label.control, HostText(label.text).c_str());
    for (std::size_t i = 0; i < zep::ModeTexts.size(); ++i)
        SetDlgItemText(IDC_MODE + static_cast<int>(i), HostText(zep::ModeTexts[i]).c_str());
    for (int i = 0; i < zep::FilterCount; ++i)
        SetDlgItemText(IDC_FILTER + i, FormatHostText(KZS_HARMONIC_ORDER, zep::FilteredOrder(i)).c_str());
    SetDlgItemText(IDC_CURRENT_GROUP, HostText(KZS_MINIMUM_CURRENT).c_str());
}

void KZDeviceCfgZEP::ShowIdentity()
{
    const KZDriver& driver = *Driver();
    SetDlgItemText(IDC_NUMBER, KZBasicString::Format(L"%d", driver.Number()).c_str());
    SetDlgItemText(IDC_IDENTIFIER, driver.Name().c_str());
    m_stcModel.SetWindowText(KZQuorvelantaSetup::Get()->DriverName(driver.TypeName().c_str()).c_str());
    SetDlgItemText(IDC_DESCRIPTION, driver.Description().c_str());
}

void KZDeviceCfgZEP::ShowRecord(const zep::InformationRecord& record)
{
    for (const Field& field : Field::All) {
        if (field.length > 0)
            field.window(*this).SendMessage(EM_LIMITTEXT, field.length);
        if (field.shown)
            field.window(*this).SetWindowText(record.Text(*field.shown).c_str());
    }
    CheckBits(m_btnModes, m_initial.modes);
    CheckBits(m_btnFilters, m_initial.filters);
    FillList(m_cmbAlgorithm, zep::AlgorithmTexts, record.AlgorithmChoice());
    FillList(m_cmbStatus, zep::StatusTexts, record.StatusChoice());
    // The device decides these three; here they are only shown.
    m_edtRatio.EnableWindow(FALSE);
    m_cmbAlgorithm.EnableWindow(FALSE);
    m_cmbStatus.EnableWindow(FALSE);
}

void KZDeviceCfgZEP::OnOK()
{
    if (!UpdateData(TRUE) || !Validate())
        return;
    // The caller must not record a change when there is none.
    if (m_settings == m_initial) {
        CDialog::OnCancel();
        return;
    }
    if (IsConfirmed() && WriteRecord())
        CDialog::OnOK();
}

zep::InformationEntries KZDeviceCfgZEP::Entries()
{
    zep::InformationEntries entries{.modes = CheckedBits(m_btnModes), .filters = CheckedBits(m_btnFilters)};
    for (const Field& field : Field::All)
        if (field.entry)
            entries.*field.entry = ControlText(field.window(*this));
    return entries;
}

bool KZDeviceCfgZEP::Validate()
{
    const auto failure = zep::CheckInformation(Entries(), m_settings);
    if (!failure)
        return true;
    const Field& field = *std::find_if(Field::All.begin(), Field::All.end(),
                                       [&](const Field& candidate) { return candidate.shown == failure->field; });
    ShowMessageAndFocus(MessageOf(*failure), static_cast<CEdit&>(field.window(*this)));
    return false;
}

bool KZDeviceCfgZEP::IsConfirmed() const
{
    return AfxMessageBox(HostText(KZS_CONFIRM_WRITE).c_str(), MB_YESNO | MB_ICONQUESTION) == IDYES;
}

bool KZDeviceCfgZEP::WriteRecord()
{
    const WaitCursor cursor;
    m_settings.modes = CheckedBits(m_btnModes);
    m_settings.filters = CheckedBits(m_btnFilters);
    zep::WriteInformation(*Document()->Root(), m_settings);
    return writeCfg(false);
}
