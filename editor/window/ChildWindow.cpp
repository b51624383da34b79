#include "ChildWindow.h"

#include "ChildPane.h"
#include "MessageLoop.h"
#include "WindowIcon.h"
#include "text/EditorText.h"

namespace {

class ChildWindow : public CDialog {
public:
    bool Run(KZDriver* driver, KZChildOptionsFactory factory);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}
    void OnCancel() override { DestroyWindow(); }

private:
    void Arrange();

    ChildPane m_pane;
};

bool ChildWindow::Run(KZDriver* driver, KZChildOptionsFactory factory)
{
    if (!Create(IDD_CHILD_WINDOW) || !m_pane.CreateIn(*this))
        return false;
    ::SetWindowTextW(m_hWnd, FormatEditorText(IDS_CHILD_TITLE, driver->Name().c_str()).c_str());
    SetProgramIcon(m_hWnd);
    const bool created = m_pane.Embed(driver, factory);
    Arrange();
    ::ShowWindow(m_hWnd, SW_SHOW);
    RunMessageLoop(m_hWnd, nullptr);
    return created;
}

void ChildWindow::Arrange()
{
    RECT client{};
    ::GetClientRect(m_hWnd, &client);
    if (m_pane.m_hWnd)
        ::MoveWindow(m_pane.m_hWnd, 0, 0, client.right, client.bottom, TRUE);
}

LRESULT ChildWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SIZE)
        Arrange();
    if (message == WM_DESTROY)
        ::PostQuitMessage(0);
    return CDialog::WindowProc(message, wParam, lParam);
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
