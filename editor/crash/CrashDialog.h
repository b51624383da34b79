// Shows the report of a crash at the next start, so that the user can send it.
#pragma once

#include <afxwin.h>

#include "CrashReport.h"
#include "DialogAccess.h"

class CrashDialog : public CDialog {
public:
    CrashDialog(FoundCrash crash, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnCopy();

    DECLARE_MESSAGE_MAP()

private:
    FoundCrash m_crash;
    DialogAccess m_access;
};

// Shows what TakeNewCrash finds; nothing when there is none.
void ShowNewCrash(CWnd* parent);
