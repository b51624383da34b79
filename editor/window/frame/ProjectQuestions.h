// What the main window asks and tells about the project's files.
#pragma once

#include <afxwin.h>

#include <optional>

#include "project/Project.h"
#include "window/WaitCursor.h"

// To the main window: tell the user what ProjectQuestions::Warning gives.
inline constexpr UINT WM_KZ_UNPROTECTED = WM_APP + 0x130;
// To the main window: what ProjectQuestions::IsWaiting gives has changed.
inline constexpr UINT WM_KZ_WAITING = WM_APP + 0x132;

class ProjectQuestions : public plant::ProjectUser {
public:
    // The window that gets WM_KZ_UNPROTECTED; not owned.
    explicit ProjectQuestions(const CWnd& window) noexcept : m_window(window) {}
    // The project that is asked about, or null; not owned.
    void SetProject(const plant::Project* project) noexcept { m_project = project; }

    // While it lives, a change waits for its end to get into the recovery file, so that it can be shown before.
    class ProtectionAtEnd {
    public:
        ProtectionAtEnd(ProjectQuestions& questions, plant::Project& project) noexcept
            : m_questions(questions), m_project(project)
        {
            m_questions.m_willProtect = true;
        }
        ~ProtectionAtEnd()
        {
            m_questions.m_willProtect = false;
            m_project.ProtectIfDue();
        }
        ProtectionAtEnd(const ProtectionAtEnd&) = delete;
        ProtectionAtEnd& operator=(const ProtectionAtEnd&) = delete;

    private:
        ProjectQuestions& m_questions;
        plant::Project& m_project;
    };
    bool WillProtect() noexcept override { return m_willProtect; }
    Answer AskAboutForeignChanges(const std::vector<std::string>& documents) override;
    // The message may come out of the middle of a dialog's work, so the window is told later, and once for each reason.
    void TellUnprotected(const plant::Message& why) noexcept override;
    [[nodiscard]] const std::wstring& Warning() const noexcept { return m_warning; }
    // The window is told at once: its thread does nothing else while it waits.
    void TellWaiting(bool isWaiting) noexcept override;
    [[nodiscard]] bool IsWaiting() const noexcept { return m_waiting.has_value(); }

    // Whether to load these documents anew. Without an answer of yes the user's own stay.
    [[nodiscard]] bool AskToLoadAnew(const std::vector<std::string>& documents) const;

    enum class Offer { TakeOver, ThrowAway, Unanswered };
    // Whether to take over what an editor left unsaved, of which some documents may have been changed since.
    [[nodiscard]] Offer OfferRecovery(const plant::Unsaved& unsaved,
                                      const std::vector<std::string>& changedSince) const;

private:
    [[nodiscard]] std::wstring Listed(const std::vector<std::string>& documents) const;

    const CWnd& m_window;
    const plant::Project* m_project = nullptr;
    bool m_willProtect = false;
    std::wstring m_warning;
    std::optional<WaitCursor> m_waiting;
};
