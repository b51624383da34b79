// What the main window asks and tells about the project's files.
#pragma once

#include <afxwin.h>

#include "project/Project.h"

// To the main window: tell the user what ProjectQuestions::TakeWarning gives.
inline constexpr UINT WM_KZ_UNPROTECTED = WM_APP + 0x130;

class ProjectQuestions : public plant::ProjectUser {
public:
    // The window that gets WM_KZ_UNPROTECTED; not owned.
    explicit ProjectQuestions(const CWnd& window) noexcept : m_window(window) {}

    Answer AskAboutForeignChanges(const std::vector<std::string>& documents) override;
    // The message may come out of the middle of a dialog's work, so the window is told later, and once for each reason.
    void TellUnprotected(const plant::Message& why) noexcept override;
    [[nodiscard]] const std::wstring& Warning() const noexcept { return m_warning; }

    // Whether to load these documents anew. Without an answer of yes the user's own stay.
    [[nodiscard]] static bool AskToLoadAnew(const plant::Project& project, const std::vector<std::string>& documents);

    // Whether to take over what an editor left unsaved; no throws it away.
    [[nodiscard]] static bool OfferRecovery(plant::Project& project, const plant::FoundRecovery& found);

private:
    const CWnd& m_window;
    std::wstring m_warning;
};
