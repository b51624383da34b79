#include "LimitsPage.h"

#include "ControlText.h"
#include "DialogSetup.h"
#include "HostText.h"
#include "JoinedName.h"
#include "NumericLocale.h"

using zep::LimitCell;

KZBasicString TextOf(const zep::LimitMessageLine& line)
{
    return line.argument ? FormatHostText(line.textId, *line.argument) : HostText(line.textId);
}

KZLayout& NewPair(LayoutPlan& plan, int first, int second)
{
    KZLayout& pair = plan.NewRow();
    pair.AddControl(first, 50);
    pair.AddGap(KZSizeTextLine);
    pair.AddControl(second, 50);
    return pair;
}

namespace {

KZBasicString MessageOf(const zep::LimitFailure& failure)
{
    KZBasicString text;
    for (const zep::LimitMessageLine& line : failure.lines) {
        if (!text.IsEmpty())
            text += std::wstring_view(L"\n");
        text += TextOf(line);
    }
    return text;
}

}  // namespace

LimitsPage::LimitsPage(const LimitsPageTable& table)
    : TabPage(table.templateId), m_table(table), m_store(table.limits), m_edits(table.edits.size())
{
}

LimitsPage::~LimitsPage()
{
    DestroyWindow();  // here, while the edit boxes that its controls are bound to still exist
}

CEdit& LimitsPage::Edit(LimitCell cell)
{
    return m_edits[cell.variable].fields[static_cast<std::size_t>(cell.field)];
}

template <class Visitor>
void LimitsPage::ForEachCell(Visitor visit) const
{
    for (std::size_t variable = 0; variable < m_table.edits.size(); ++variable) {
        for (std::size_t field = 0; field < zep::LimitFieldCount; ++field) {
            if (const int id = m_table.edits[variable][field])
                visit(LimitCell{variable, static_cast<zep::LimitField>(field)}, id);
        }
    }
}

void LimitsPage::DoDataExchange(CDataExchange* pDX)
{
    TabPage::DoDataExchange(pDX);
    const zep::NumericLocale locale;
    if (!pDX->m_bSaveAndValidate)
        m_store.ValuesToTexts();
    ForEachCell([&](LimitCell cell, int id) {
        DDX_Control(pDX, id, Edit(cell));
        if (pDX->m_bSaveAndValidate)
            m_store.Text(cell) = ControlText(Edit(cell));
        else
            Edit(cell).SetWindowText(m_store.Text(cell).c_str());
    });
    if (pDX->m_bSaveAndValidate)
        m_store.TextsToValues();
}

BOOL LimitsPage::OnInitDialog()
{
    TabPage::OnInitDialog();
    SetLabels();
    return TRUE;
}

void LimitsPage::NameControls(AccessibleNames& names, const KZBasicString&)
{
    KZBasicString row;
    ForEachCell([&](LimitCell cell, int) {
        if (cell.field == zep::LimitField::Nominal)
            row = JoinedName({ControlText(m_hWnd, RowLabelId(cell.variable)), SideName()});
        names.Set(Edit(cell), JoinedName({row, HostText(zep::LimitFieldTitle(cell.field))}).c_str());
    });
}

void LimitsPage::SetTexts(int firstId, int count, unsigned textId)
{
    const KZBasicString text = HostText(textId);
    for (int id = firstId; id < firstId + count; ++id)
        SetDlgItemText(id, text.c_str());
}

void LimitsPage::Load(const XmlDocument::XmlNode& viewSetup)
{
    m_store.Load(viewSetup);
    if (m_hWnd)
        UpdateData(FALSE);
}

bool LimitsPage::Validate()
{
    if (!UpdateData(TRUE))
        return false;  // it has said why
    const auto failure = zep::CheckLimits(m_store);
    if (failure)
        ShowFailure(*failure);
    return !failure;
}

void LimitsPage::ShowFailure(const zep::LimitFailure& failure)
{
    const KZBasicString text = MessageOf(failure);
    if (failure.focus)
        ShowMessageAndFocus(text, Edit(*failure.focus));
    else
        AfxMessageBox(text.c_str(), MB_OK);
}

void LimitsPage::Save(XmlDocument::XmlNode& viewSetup) const
{
    m_store.Save(viewSetup);
}
