#include <exception>
#include <utility>

#include "DialogTemplate.h"
#include "ExceptionGuard.h"
#include "ThreadState.h"
#include "WindowAccess.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace {

// The dialog procedure: all messages go through the window procedure, this one alone is missing there.
INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    auto* dialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(window));
    if (!dialog)
        return TRUE;
    try {
        return dialog->OnInitDialog();
    } catch (...) {
        MSG failed{};
        failed.hwnd = window;
        failed.message = message;
        failed.wParam = wParam;
        failed.lParam = lParam;
        ReportCurrentException(failed);
        // A dialog that is not fully set up is not shown.
        dialog->EndDialog(-1);
        return FALSE;
    }
}

// Only when the dialog has gone: in the loop of the message it would take commands that were posted before, OK among
// them, although its answer is settled.
void ReportFailure(const std::exception_ptr& failure) noexcept
{
    try {
        std::rethrow_exception(failure);
    } catch (...) {
        ReportCurrentException(MSG{});
    }
}

}  // namespace

CDialog::CDialog() noexcept = default;

CDialog::CDialog(LPCWSTR lpszTemplateName, CWnd* pParentWnd) noexcept
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd)
{
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) noexcept : CDialog(MAKEINTRESOURCEW(nIDTemplate), pParentWnd) {}

CDialog::~CDialog()
{
    if (m_hWnd)
        CWnd::DestroyWindow();
}

BOOL CDialog::Create(LPCWSTR lpszTemplateName, CWnd* pParentWnd)
{
    m_lpszTemplateName = lpszTemplateName;
    const DialogTemplate found = FindDialogTemplate(lpszTemplateName);
    return found.bytes && CreateDlgIndirect(found.bytes, pParentWnd, found.module);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCEW(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATEW lpDialogTemplate, CWnd* pParentWnd, void*, HINSTANCE hInst)
{
    m_lpDialogTemplate = lpDialogTemplate;
    const BOOL created = CreateDlgIndirect(lpDialogTemplate, pParentWnd, hInst);
    return created;
}

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATEW lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst)
{
    const HINSTANCE module = hInst ? hInst : AfxGetInstanceHandle();
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;
    AfxHookWindowCreate(this);
    const HWND window = ::CreateDialogIndirectParamW(module, lpDialogTemplate,
                                                     pParentWnd ? pParentWnd->m_hWnd : nullptr, DialogProcedure, 0);
    if (!AfxUnhookWindowCreate()) {
        PostNcDestroy();  // which may delete this object
        return FALSE;
    }
    if (!window)
        return FALSE;
    if ((m_nFlags & WF_CONTINUEMODAL) == 0) {
        // OnInitDialog has called EndDialog.
        ::DestroyWindow(window);
        return FALSE;
    }
    return TRUE;
}

HWND CDialog::PreModal()
{
    return GetSafeOwner_(m_pParentWnd ? m_pParentWnd->m_hWnd : nullptr, &m_hWndTop);
}

void CDialog::PostModal()
{
    if (const HWND top = std::exchange(m_hWndTop, nullptr); ::IsWindow(top))
        ::EnableWindow(top, TRUE);
}

INT_PTR CDialog::DoModal()
{
    const DialogTemplate found =
        m_lpszTemplateName ? FindDialogTemplate(m_lpszTemplateName) : DialogTemplate{m_lpDialogTemplate, nullptr};
    if (!found.bytes || m_hWnd)
        return -1;

    const HWND owner = PreModal();
    const bool ownerWasEnabled = owner && owner != ::GetDesktopWindow() && ::IsWindowEnabled(owner);
    if (ownerWasEnabled)
        ::EnableWindow(owner, FALSE);

    m_nModalResult = -1;
    std::exception_ptr failure;
    try {
        RunDialog(found.bytes, owner, found.module);
    } catch (...) {
        // A message filter threw, or there was no memory for a message; the owner must not stay disabled.
        failure = std::current_exception();
        m_nModalResult = -1;
    }

    // Before the dialog goes: Windows gives the activation of a destroyed window to its owner only if that is enabled.
    if (ownerWasEnabled)
        ::EnableWindow(owner, TRUE);
    if (owner && m_hWnd && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner);
    DestroyWindow();
    PostModal();
    if (failure)
        ReportFailure(failure);
    return m_nModalResult;
}

void CDialog::RunDialog(LPCDLGTEMPLATEW lpDialogTemplate, HWND hWndParent, HINSTANCE hInst)
{
    if (!CreateDlgIndirect(lpDialogTemplate, CWnd::FromHandle(hWndParent), hInst))
        return;
    DWORD flags = MLF_SHOWONIDLE;
    if ((GetStyle() & DS_NOIDLEMSG) != 0)
        flags |= MLF_NOIDLEMSG;
    RunModalLoop(flags);
    // Hidden before the owner is enabled, so that no click meets a dialog that has ended. EndDialog has done it
    // already.
    if (m_hWnd && IsWindowVisible())
        SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
}

void CDialog::EndDialog(int nResult)
{
    if ((m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)) != 0)
        EndModalLoop(nResult);
    ::EndDialog(m_hWnd, nResult);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl)
{
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    // Commands of the program, which MFC numbers from 0x8000, go on to the owner and the application.
    const bool isCommand = nCode == CN_COMMAND && nID >= 0x8000 && nID < 0xF000;
    if (!isCommand)
        return FALSE;
    if (CWnd* owner = GetParent(); owner && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinThread* thread = AfxGetThread();
    return thread && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CDialog::OnInitDialog()
{
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

BOOL CDialog::CheckAutoCenter()
{
    const DialogTemplate found =
        m_lpszTemplateName ? FindDialogTemplate(m_lpszTemplateName) : DialogTemplate{m_lpDialogTemplate, nullptr};
    return found.bytes && AsksForCentring(found.bytes);
}

HBRUSH CDialog::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    return CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
}
