// A dialog whose controls cannot be read, as it may happen to MFC's data exchange: the user has been told then.
#pragma once

#include <afxwin.h>

template <class Dialog>
class RefusingExchange : public Dialog {
public:
    using Dialog::Dialog;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        Dialog::DoDataExchange(pDX);
        if (pDX->m_bSaveAndValidate)
            pDX->Fail();
    }
};
