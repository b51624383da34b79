// Checks a project as it is open, unsaved changes included, a slice at a time.
#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include "ProjectCheck.h"
#include "project/Project.h"

namespace plant {

class ProjectChecker {
public:
    // The project must outlive this object. Nothing is checked yet.
    explicit ProjectChecker(Project& project);
    ~ProjectChecker();
    ProjectChecker(const ProjectChecker&) = delete;
    ProjectChecker& operator=(const ProjectChecker&) = delete;

    // Begins anew: with everything, or with what a change may have made different. What was found before stays to be
    // shown until it is found anew or not.
    void Restart();
    void Restart(const ProjectChange& change);
    // Goes on for about so long. Returns whether there is more to do.
    bool Work(std::chrono::milliseconds slice);
    // Leaves off; the findings so far stay.
    void Cancel() noexcept;

    [[nodiscard]] bool IsWorking() const noexcept;
    // Whether all has been looked at since the last change.
    [[nodiscard]] bool IsComplete() const noexcept;
    // How much is done of what was begun, 0 to 100.
    [[nodiscard]] int Percent() const noexcept;

    // All findings in the order of CheckProject, which finds the same in the project once it is saved. Valid until the
    // next Restart or Work.
    [[nodiscard]] const Findings& All() const;
    // How many of them are of the device.
    [[nodiscard]] std::size_t CountOf(const KZBasicString& driverId) const;

private:
    class State;
    std::unique_ptr<State> m_state;
};

}  // namespace plant
