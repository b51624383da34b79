#include "ChildWindow.h"

#include "ChildPane.h"
#include "EmbeddedCommand.h"
#include "WindowIcon.h"
#include "text/EditorText.h"

namespace {

class ChildWindow : public CDialog {
public:
    bool Run(KZDriver* driver, KZChildOptionsFactory factory);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}
    void OnCancel() override { DestroyWindow(); }

    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    void Arrange();

    ChildPane m_pane;
};

BEGIN_MESSAGE_MAP(ChildWindow, CDialog)
    ON_WM_DESTROY()
    ON_WM_SIZE()
END_MESSAGE_MAP()

bool ChildWindow::Run(KZDriver* driver, KZChildOptionsFactory factory)
{
    if (!Create(IDD_CHILD_WINDOW) || !m_pane.CreateIn(*this))
        return false;
    AfxGetApp()->m_pMainWnd = this;
    SetWindowText(FormatEditorText(IDS_CHILD_TITLE, driver->Name().c_str()).c_str());
    SetProgramIcon(m_hWnd);
    const bool created = m_pane.Embed(driver, factory);
    Arrange();
    ShowWindow(SW_SHOW);
    ::SetFocus(::GetNextDlgTabItem(m_hWnd, nullptr, FALSE));
    AfxGetApp()->Run();
    return created;
}

void ChildWindow::Arrange()
{
    RECT client{};
    ::GetClientRect(m_hWnd, &client);
    if (m_pane.m_hWnd)
        ::MoveWindow(m_pane.m_hWnd, 0, 0, client.right, client.bottom, TRUE);
}

void ChildWindow::OnDestroy()
{
    CDialog::OnDestroy();
    ::PostQuitMessage(0);
}

void ChildWindow::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    Arrange();
}

BOOL ChildWindow::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return RouteEmbeddedCommand(m_hWnd, wParam) || CDialog::OnCommand(wParam, lParam);
}

}  // namespace

bool ShowChildWindow(KZDriver* driver, KZChildOptionsFactory factory)
{
    return ChildWindow().Run(driver, factory);
}
