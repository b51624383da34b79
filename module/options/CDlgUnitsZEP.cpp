#include "CDlgUnitsZEP.h"

#include <span>

#include "ControlText.h"
#include "DialogSetup.h"
#include "HostText.h"
#include "JoinedName.h"
#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"
#include "KZStringIds.h"
#include "LayoutPlan.h"
#include "UnitsControls.h"

namespace {

// The controls of one unit.
struct UnitControls {
    int group;
    unsigned groupText;
    int unitLabel;
    int units[2];
    int decimalsLabel;
    int decimals[zep::DecimalsChoiceCount];
};

constexpr UnitControls Units[zep::PowerUnitCount] = {
    {IDC_APPARENT_GROUP,
     KZS_UNITS_ACTIVE_APPARENT,
     IDC_APPARENT_UNIT_LABEL,
     {IDC_APPARENT_KILO, IDC_APPARENT_PLAIN},
     IDC_APPARENT_DEC_LABEL,
     {IDC_APPARENT_DEC_0, IDC_APPARENT_DEC_1, IDC_APPARENT_DEC_2, IDC_APPARENT_DEC_3}},
    {IDC_REACTIVE_GROUP,
     KZS_UNITS_REACTIVE,
     IDC_REACTIVE_UNIT_LABEL,
     {IDC_REACTIVE_KILO, IDC_REACTIVE_PLAIN},
     IDC_REACTIVE_DEC_LABEL,
     {IDC_REACTIVE_DEC_0, IDC_REACTIVE_DEC_1, IDC_REACTIVE_DEC_2, IDC_REACTIVE_DEC_3}},
};

KZBasicString DecimalsText(int decimals)
{
    switch (decimals) {
    case 0:
        return HostText(KZS_NO_DECIMALS);
    case 1:
        return FormatHostText(KZS_ONE_DECIMAL, decimals);
    default:
        return FormatHostText(KZS_SEVERAL_DECIMALS, decimals);
    }
}

template <std::size_t Count>
KZLayout& RadioColumn(LayoutPlan& plan, int label, const int (&radios)[Count])
{
    KZLayout& column = plan.NewColumn();
    column.AddControlsAndLabel(label, 1, radios, Count);
    column.AddGap(100);
    return column;
}

// The box of one unit: its units beside its decimals.
KZLayout& UnitBox(LayoutPlan& plan, const UnitControls& controls)
{
    KZLayout& box = plan.NewRow();
    box.SetBoxControl(controls.group, KZSizeStandard, true);
    box.AddLayout(RadioColumn(plan, controls.unitLabel, controls.units), 50);
    box.AddGap(KZSizeStandard);
    box.AddLayout(RadioColumn(plan, controls.decimalsLabel, controls.decimals), 50);
    return box;
}

}  // namespace

BEGIN_MESSAGE_MAP(CDlgUnitsZEP, CDialog)
END_MESSAGE_MAP()

CDlgUnitsZEP::CDlgUnitsZEP(CWnd* parent, KZDriver* driver)
    : CDialog(IDD_UNITS, parent), m_hIcon(LoadProgramIcon()), m_record(*KZMainCfg::Get(), driver->DriverId()),
      m_pDriver(driver)
{
}

CDlgUnitsZEP::~CDlgUnitsZEP() = default;

void CDlgUnitsZEP::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
    DDX_Control(pDX, IDOK, m_btnOK);
    for (std::size_t i = 0; i < zep::PowerUnitCount; ++i) {
        DDX_Radio(pDX, Units[i].decimals[0], m_choices[i].decimals);
        DDX_Radio(pDX, Units[i].units[0], m_choices[i].scale);
    }
}

BOOL CDlgUnitsZEP::OnInitDialog()
{
    // The base class shows the choices.
    m_initial = m_choices = m_record.Read();
    CDialog::OnInitDialog();
    KeepDecimalsReachable();
    SetTexts();
    SetUpOkCancel(m_btnOK, m_btnCancel);
    LayoutControls();
    SetIcon(m_hIcon, TRUE);
    m_access.Attach(m_hWnd, {.nameControls = [this](AccessibleNames& names) { NameControls(names); }});
    return TRUE;
}

// The checked button is the tab stop of its group: a group without one would be out of the keyboard's reach.
void CDlgUnitsZEP::KeepDecimalsReachable()
{
    for (std::size_t i = 0; i < zep::PowerUnitCount; ++i) {
        if (!zep::IsDecimalsChoice(m_choices[i].decimals))
            GetDlgItem(Units[i].decimals[0])->ModifyStyle(0, WS_TABSTOP);
    }
}

void CDlgUnitsZEP::SetTexts()
{
    const KZBasicString model = KZQuorvelantaSetup::Get()->DriverName(m_pDriver->TypeName().c_str());
    SetWindowText(FormatHostText(KZS_UNITS_TITLE, model.c_str()).c_str());
    for (const UnitControls& unit : Units) {
        SetDlgItemText(unit.group, HostText(unit.groupText).c_str());
        SetDlgItemText(unit.unitLabel, HostText(KZS_UNIT).c_str());
        SetDlgItemText(unit.decimalsLabel, HostText(KZS_DECIMALS).c_str());
        for (int i = 0; i < zep::DecimalsChoiceCount; ++i)
            SetDlgItemText(unit.decimals[i], DecimalsText(i).c_str());
    }
}

// The two units have the same choices: each is called by its unit, by what it chooses, and by its own text.
void CDlgUnitsZEP::NameControls(AccessibleNames& names) const
{
    const auto name = [&](const UnitControls& unit, int label, std::span<const int> choices) {
        const KZBasicString heading = JoinedName({ControlText(m_hWnd, unit.group), ControlText(m_hWnd, label)});
        for (const int choice : choices)
            names.Set(::GetDlgItem(m_hWnd, choice), JoinedName({heading, ControlText(m_hWnd, choice)}).c_str());
    };
    for (const UnitControls& unit : Units) {
        name(unit, unit.unitLabel, unit.units);
        name(unit, unit.decimalsLabel, unit.decimals);
    }
}

void CDlgUnitsZEP::LayoutControls()
{
    LayoutPlan plan(*this);
    KZLayout& boxes = plan.NewRow();
    boxes.AddLayout(UnitBox(plan, Units[0]), 50);
    boxes.AddGap(KZSizeStandard);
    boxes.AddLayout(UnitBox(plan, Units[1]), 50);

    KZLayout& page = plan.Root();
    page.SetBorders(KZSizeStandard, KZSizeStandard);
    page.AddGap(KZSizeStandard);
    page.AddLayout(boxes, KZSizeNatural);
    page.AddGap(KZSizeStandard);
    page.AddLayout(plan.NewOkCancelRow(), KZSizeStandard);
    page.AddGap(KZSizeStandard);
    plan.FitAndApply();
}

void CDlgUnitsZEP::OnOK()
{
    if (!UpdateData(TRUE))
        return;
    if (m_choices == m_initial) {
        CDialog::OnCancel();
        return;
    }
    m_record.Write(m_choices);
    CDialog::OnOK();
}
