#include "StartPane.h"

#include "KZLayout.h"
#include "text/EditorText.h"

BEGIN_MESSAGE_MAP(StartPane, CDialog)
    ON_COMMAND_RANGE(IDC_FIRST_COMMAND, IDC_LAST_COMMAND, &StartPane::OnCommandButton)
    ON_CONTROL(LBN_DBLCLK, IDC_RECENT, &StartPane::OnDoubleClick)
    ON_WM_SIZE()
END_MESSAGE_MAP()

bool StartPane::CreateIn(CWnd& parent)
{
    return Create(IDD_START, &parent) != FALSE;
}

void StartPane::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_RECENT, m_lstRecent);
    m_tips.Attach(m_lstRecent);
}

void StartPane::Show(const std::vector<std::wstring>& recent)
{
    SetDlgItemText(IDC_NEW, EditorText(IDS_COMMAND_NEW).c_str());
    SetDlgItemText(IDC_OPEN, EditorText(IDS_COMMAND_OPEN).c_str());
    SetDlgItemText(IDC_RECENT_LABEL, EditorText(IDS_RECENT_LABEL).c_str());
    m_lstRecent.ResetContent();
    for (const std::wstring& folder : recent)
        m_lstRecent.AddString(folder.c_str());
    m_lstRecent.SendMessage(LB_SETCURSEL, 0);
    Arrange();
}

// The buttons are the window's commands.
void StartPane::OnCommandButton(UINT id)
{
    GetParent()->SendMessage(WM_COMMAND, id);
}

void StartPane::OnDoubleClick()
{
    GetParent()->SendMessage(WM_COMMAND, IDC_OPEN_MARKED);
}

void StartPane::Arrange()
{
    KZHoritzontalLayout buttons(this);
    buttons.AddControl(IDC_NEW, KZSizeNatural);
    buttons.AddGap(KZSizeStandard);
    buttons.AddControl(IDC_OPEN, KZSizeNatural);
    buttons.AddGap(1);
    KZVerticalLayout page(this);
    page.SetBorders(KZSizeStandard, KZSizeStandard);
    page.AddLayout(buttons, KZSizeNatural);
    page.AddGap(KZSizeStandard);
    page.AddControl(IDC_RECENT_LABEL, KZSizeTextLine);
    page.AddGap(KZSizeEditLine);
    page.AddControl(IDC_RECENT, 1);
    CRect client;
    GetClientRect(&client);
    page.Layout(client);
}

void StartPane::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    if (m_lstRecent.m_hWnd)
        Arrange();
}
