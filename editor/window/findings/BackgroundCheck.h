// The check of the open project behind everything that the user does: it begins anew after each change. Knows no
// window; whoever shows the findings gives it its time.
#pragma once

#include <optional>

#include "check/ProjectChecker.h"

class BackgroundCheck : private plant::ProjectListener {
public:
    // The project must outlive this object. Nothing is checked before Restart or a change.
    explicit BackgroundCheck(plant::Project& project);
    ~BackgroundCheck() { m_project.RemoveListener(*this); }
    BackgroundCheck(const BackgroundCheck&) = delete;
    BackgroundCheck& operator=(const BackgroundCheck&) = delete;

    // Checks everything from the next Work on.
    void Restart() noexcept { m_isAllDue = true; }
    // Whether there is something to be checked.
    [[nodiscard]] bool IsDue() const noexcept;
    // Goes on for about so long. Returns whether there is more to do. What keeps it from reading the project is a
    // finding, and ends the check.
    bool Work(std::chrono::milliseconds slice);

    // Leaves off until the next Restart or change; the findings so far stay.
    void Cancel() noexcept;

    // How much is done of what was begun, 0 to 100; nothing while nothing is under way.
    [[nodiscard]] std::optional<int> Percent() const noexcept;
    // Whether all was looked at since the last change.
    [[nodiscard]] bool IsComplete() const noexcept { return m_checker.IsComplete() && !IsDue(); }
    // Those so far. What was found before stays until it is found anew or not.
    [[nodiscard]] plant::Findings All() const;

private:
    void OnProjectChanged(const plant::ProjectChange& change) noexcept override;
    void Begin();

    plant::Project& m_project;
    plant::ProjectChecker m_checker{m_project};
    // What has changed since the check last began.
    bool m_isAllDue = false;
    bool m_isListDue = false;
    std::vector<KZBasicString> m_due;  // driverIds
    std::optional<plant::Finding> m_obstacle;
};
