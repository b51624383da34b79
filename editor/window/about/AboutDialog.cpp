#include "AboutDialog.h"

#include "AboutControls.h"
#include "text/EditorText.h"
#include "window/WindowIcon.h"
#include "window/dialog/Clipboard.h"

namespace {

constexpr EditorDialog::Caption Captions[] = {
    {0, IDS_ABOUT_TITLE},
    {IDC_ABOUT_PURPOSE, IDS_ABOUT_PURPOSE},
    {IDC_ABOUT_LABEL_DETAILS, IDS_ABOUT_DETAILS},
    {IDC_ABOUT_COPY, IDS_ABOUT_COPY},
    {IDCANCEL, IDS_BUTTON_CLOSE},
};

}  // namespace

BEGIN_MESSAGE_MAP(AboutDialog, EditorDialog)
    ON_BN_CLICKED(IDC_ABOUT_COPY, &AboutDialog::OnCopy)
END_MESSAGE_MAP()

AboutDialog::AboutDialog(CWnd* parent, std::wstring version, const std::wstring& details)
    : EditorDialog(IDD_ABOUT, parent, Captions), m_version(std::move(version))
{
    for (const wchar_t character : details)
        m_details.append(character == L'\n' ? L"\r\n" : std::wstring(1, character));
}

void AboutDialog::PlanPage(KZLayout& page)
{
    SetDlgItemText(IDC_ABOUT_VERSION, FormatEditorText(IDS_ABOUT_VERSION, m_version.c_str()).c_str());
    KZLayout& head = AddRow(page);
    head.AddControl(IDC_ABOUT_ICON, KZSizeNatural);
    head.AddGap(KZSizeStandard);
    const int lines[] = {IDC_ABOUT_PURPOSE};
    head.AddControlsAndLabel(IDC_ABOUT_VERSION, 100, lines, 1);
    AddLabelled(page, IDC_ABOUT_LABEL_DETAILS, IDC_ABOUT_DETAILS);
    AddButtons(page, {IDC_ABOUT_COPY, 0, IDCANCEL});
}

BOOL AboutDialog::OnInitDialog()
{
    ShowProgramIcon(*this, IDC_ABOUT_ICON);
    if (!EditorDialog::OnInitDialog())
        return FALSE;
    SetDlgItemText(IDC_ABOUT_DETAILS, m_details.c_str());
    GotoDlgCtrl(GetDlgItem(IDCANCEL));
    return FALSE;
}

void AboutDialog::OnCopy()
{
    CopyText(*this, m_details);
}
