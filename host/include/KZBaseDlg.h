// The base of the host's own modal dialogs.
#pragma once

#include <afxwin.h>

#include "KZHostApi.h"

class KZ_API KZBaseDlg : public CDialog {
    DECLARE_DYNAMIC(KZBaseDlg)

public:
    // templateId  the dialog template, in any module of the resource chain
    // parent      the owner; null: the program's main window
    KZBaseDlg(unsigned templateId, CWnd* parent);
    ~KZBaseDlg() override;

protected:
    DECLARE_MESSAGE_MAP()
};
