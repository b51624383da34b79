// What program this is, and what somebody who helps needs to know of it and of the computer.
#pragma once

#include "window/dialog/EditorDialog.h"

class AboutDialog : public EditorDialog {
public:
    // The details are lines, each ended by "\n".
    AboutDialog(CWnd* parent, std::wstring version, const std::wstring& details);

protected:
    BOOL OnInitDialog() override;
    void PlanPage(KZLayout& page) override;

    afx_msg void OnCopy();

    DECLARE_MESSAGE_MAP()

private:
    std::wstring m_version;
    std::wstring m_details;
};
