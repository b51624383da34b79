// What the main window shows while no project is open: buttons for making and opening one, and the recent ones.
#pragma once

#include <vector>

#include "CutTextTips.h"
#include "window/dialog/TextListBox.h"

class StartPane : public CDialog {
public:
    bool CreateIn(CWnd& parent);

    // Texts in the user's language, and the folders of the recent projects.
    void Show(const std::vector<std::wstring>& recent);
    // The place of the marked one; -1 when none is.
    [[nodiscard]] int Marked() const { return static_cast<int>(m_lstRecent.SendMessage(LB_GETCURSEL)); }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override {}
    void OnCancel() override {}

    afx_msg void OnCommandButton(UINT id);
    afx_msg void OnDoubleClick();
    afx_msg void OnSize(UINT type, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    void Arrange();

    TextListBox m_lstRecent;
    CutTextTips m_tips;
};
