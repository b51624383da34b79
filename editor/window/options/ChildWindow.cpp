#include "ChildWindow.h"

#include "ChildPane.h"
#include "DialogAccess.h"
#include "EmbeddedCommand.h"
#include "text/EditorText.h"
#include "window/WindowIcon.h"

namespace {

class ChildWindow : public CDialog {
public:
    bool Run(KZDriver* driver, KZChildOptionsFactory factory);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}
    void OnCancel() override { DestroyWindow(); }

    afx_msg void OnSize(UINT type, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    void Arrange();

    ChildPane m_pane;
    DialogAccess m_access;
};

BEGIN_MESSAGE_MAP(ChildWindow, CDialog)
    ON_WM_SIZE()
END_MESSAGE_MAP()

bool ChildWindow::Run(KZDriver* driver, KZChildOptionsFactory factory)
{
    if (!Create(IDD_CHILD_WINDOW) || !m_pane.CreateIn(*this))
        return false;
    AfxGetApp()->m_pMainWnd = this;
    SetWindowText(FormatEditorText(IDS_CHILD_TITLE, driver->Name().c_str()).c_str());
    SetProgramIcon(*this);
    const bool created = m_pane.Embed(driver, factory);
    Arrange();
    m_access.Attach(m_hWnd, {});
    m_pane.ShowWindow(SW_SHOW);
    ShowWindow(SW_SHOW);
    if (CWnd* first = GetNextDlgTabItem(nullptr))
        first->SetFocus();
    AfxGetApp()->Run();
    return created;
}

void ChildWindow::Arrange()
{
    CRect client;
    GetClientRect(&client);
    if (m_pane.m_hWnd)
        m_pane.MoveWindow(&client);
}

void ChildWindow::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    Arrange();
}

BOOL ChildWindow::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return RouteEmbeddedCommand(*this, wParam, lParam) || CDialog::OnCommand(wParam, lParam);
}

}  // namespace

bool ShowChildWindow(KZDriver* driver, KZChildOptionsFactory factory)
{
    return ChildWindow().Run(driver, factory);
}
