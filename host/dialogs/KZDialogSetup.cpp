#include "KZDialogSetup.h"

#include "KZLoadString.h"
#include "KZQuorvelantaSetup.h"
#include "KZStringIds.h"

namespace {

void SetUpButton(CImageButton& button, unsigned text, const wchar_t* picture)
{
    const KZBasicString wanted = KZLoadString(text);
    CString present;
    button.GetWindowText(present);
    // The templates say it in English already; a text set anew is drawn anew.
    if (wanted != present.GetString())
        button.SetWindowTextW(wanted.c_str());
    button.SetImage(KZQuorvelantaSetup::Get()->getImageFilePath() + picture, CLR_INVALID, false);
}

}  // namespace

void KZSetUpOkCancel(CImageButton& ok, CImageButton& cancel)
{
    SetUpButton(ok, KZS_OK, L"OK-16.png");
    SetUpButton(cancel, KZS_CANCEL, L"CANCEL-16.png");
}

HICON KZLoadProgramIcon()
{
    const unsigned id = KZQuorvelantaSetup::Get()->ProgramIDResource();
    if (id == 0)
        return nullptr;
    const wchar_t* name = MAKEINTRESOURCEW(id);
    const HINSTANCE module = AfxFindResourceHandle(name, reinterpret_cast<LPCWSTR>(RT_GROUP_ICON));
    return LoadIconW(module, name);
}

void KZSetBigIcon(CWnd& dialog, HICON icon) noexcept
{
    dialog.SendMessage(WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon));
}

void KZSetBigIcon(CWnd& dialog)
{
    KZSetBigIcon(dialog, KZLoadProgramIcon());
}

void KZFitDialogHeight(CWnd& dialog, const KZLayout& layout)
{
    CRect client;
    CRect window;
    dialog.GetClientRect(&client);
    dialog.GetWindowRect(&window);
    const int difference = layout.FixedSize().cy - client.Height();
    if (difference != 0)
        dialog.SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() + difference,
                            SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_DEFERERASE);
}

void KZShowMessageAndFocus(const KZBasicString& text, CEdit& field)
{
    AfxMessageBox(text.c_str(), MB_OK);
    field.SetFocus();
    field.SendMessage(EM_SETSEL, 0, -1);
    field.SendMessage(EM_SCROLLCARET);
}
