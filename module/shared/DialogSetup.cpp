#include "DialogSetup.h"

#include "HostText.h"
#include "KZQuorvelantaSetup.h"
#include "KZStringIds.h"

namespace {

void SetUpButton(CImageButton& button, unsigned textId, const wchar_t* picture)
{
    button.SetWindowText(HostText(textId).c_str());
    button.SetImage(KZQuorvelantaSetup::Get()->getImageFilePath() + picture, CLR_INVALID, false);
}

}  // namespace

void SetUpOkCancel(CImageButton& ok, CImageButton& cancel)
{
    SetUpButton(ok, KZS_OK, L"OK-16.png");
    SetUpButton(cancel, KZS_CANCEL, L"CANCEL-16.png");
}

HICON LoadProgramIcon()
{
    const wchar_t* icon = MAKEINTRESOURCEW(KZQuorvelantaSetup::Get()->ProgramIDResource());
    return ::LoadIconW(AfxFindResourceHandle(icon, RT_GROUP_ICON), icon);
}

void ShowMessageAndFocus(const KZBasicString& text, CEdit& field)
{
    AfxMessageBox(text.c_str(), MB_OK);
    field.SetFocus();
    field.SetSel(0, -1);
}
