#include "VariablesPage.h"

#include "KZLayout.h"
#include "text/EditorText.h"

BEGIN_MESSAGE_MAP(VariablesPage, CDialog)
    ON_BN_CLICKED(IDC_REMOVE, &VariablesPage::OnRemove)
    ON_LBN_SELCHANGE(IDC_CHOSEN, &VariablesPage::OnMark)
    ON_WM_CTLCOLOR()
    ON_WM_SIZE()
END_MESSAGE_MAP()

bool VariablesPage::CreateIn(CWnd& parent)
{
    if (!Create(IDD_VARIABLES, &parent))
        return false;
    SetTexts();
    return true;
}

void VariablesPage::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CHOSEN, m_lstChosen);
}

void VariablesPage::SetTexts()
{
    SetDlgItemText(IDC_CHOSEN_LABEL, EditorText(IDS_CHOSEN_LABEL).c_str());
    SetDlgItemText(IDC_REMOVE, EditorText(IDS_BUTTON_REMOVE).c_str());
    Arrange();
}

void VariablesPage::Show(const plant::VariableList& variables)
{
    m_lstChosen.Show(variables);
}

// The button is one of the window's commands.
void VariablesPage::OnRemove()
{
    GetParent()->SendMessage(WM_COMMAND, IDC_REMOVE);
}

void VariablesPage::OnMark()
{
    GetParent()->SendMessage(WM_KZ_VARIABLES_MARKED);
}

HBRUSH VariablesPage::OnCtlColor(CDC* pDC, CWnd*, UINT)
{
    pDC->SetBkColor(::GetSysColor(COLOR_WINDOW));
    pDC->SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    return ::GetSysColorBrush(COLOR_WINDOW);
}

void VariablesPage::Arrange()
{
    KZHoritzontalLayout buttons(this);
    buttons.AddControl(IDC_REMOVE, KZSizeNatural);
    buttons.AddGap(1);
    KZVerticalLayout page(this);
    page.AddControl(IDC_CHOSEN_LABEL, KZSizeTextLine);
    page.AddGap(KZSizeEditLine);
    page.AddControl(IDC_CHOSEN, 1);
    page.AddGap(KZSizeStandard);
    page.AddLayout(buttons, KZSizeNatural);
    CRect client;
    GetClientRect(&client);
    page.Layout(client);
}

void VariablesPage::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    // Windows tells the size before it makes the controls.
    if (m_lstChosen.m_hWnd)
        Arrange();
}
