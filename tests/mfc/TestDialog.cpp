#include "TestDialog.h"

#include <stdexcept>

BEGIN_MESSAGE_MAP(TestDialog, CDialog)
    ON_BN_CLICKED(IDC_BUTTON, &TestDialog::OnPressed)
END_MESSAGE_MAP()

void TestDialog::Open(CWnd* parent)
{
    if (!Create(IDD_CONTROLS, parent))
        throw std::runtime_error("the test dialog could not be created");
}

void TestDialog::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    if (exchange)
        exchange(pDX);
}

BOOL TestDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    if (initialise)
        initialise();
    return TRUE;
}

void TestDialog::OnPressed()
{
    if (pressed)
        pressed();
}
