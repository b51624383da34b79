#include "CrashDialog.h"

#include "KZUtf8.h"
#include "resources/DialogTextIds.h"
#include "text/EditorText.h"
#include "window/dialog/Clipboard.h"

BEGIN_MESSAGE_MAP(CrashDialog, CDialog)
    ON_BN_CLICKED(IDC_CRASH_COPY, &CrashDialog::OnCopy)
END_MESSAGE_MAP()

CrashDialog::CrashDialog(FoundCrash crash, CWnd* parent) : CDialog(IDD_CRASH, parent), m_crash(std::move(crash)) {}

BOOL CrashDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetWindowText(EditorText(IDS_CRASH_TITLE).c_str());
    SetDlgItemText(IDC_CRASH_TEXT, EditorText(IDS_CRASH_TEXT).c_str());
    SetDlgItemText(IDC_CRASH_REPORT, FromUtf8(m_crash.text).c_str());
    SetDlgItemText(IDC_CRASH_FILE, FormatEditorText(IDS_CRASH_FILE, m_crash.file.c_str()).c_str());
    SetDlgItemText(IDC_CRASH_COPY, EditorText(IDS_CRASH_COPY).c_str());
    SetDlgItemText(IDCANCEL, EditorText(IDS_BUTTON_CLOSE).c_str());
    m_access.Attach(m_hWnd, {});
    return TRUE;
}

void CrashDialog::OnCopy()
{
    CopyText(*this, FromUtf8(m_crash.text));
}

void ShowNewCrash(CWnd* parent)
{
    if (std::optional<FoundCrash> crash = TakeNewCrash(CrashFolder()))
        CrashDialog(std::move(*crash), parent).DoModal();
}
