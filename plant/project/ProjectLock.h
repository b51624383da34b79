// The right to change a project's files, which one process has at a time.
#pragma once

#include <functional>

#include "Disk.h"

namespace plant {

class ProjectLock {
public:
    static constexpr int LongestWait = 5000;  // milliseconds
    static constexpr int NoticeableWait = 500;

    // Is called with true when a wait becomes noticeable, and with false at the end of such a wait.
    using Waiter = std::function<void(bool isWaiting)>;

    // Takes the lock of the project in a folder: a file there that is held without sharing, and gone with its owner.
    // While somebody else has it, waits. Throws Refusal when it has not come free in that time.
    ProjectLock(Disk& disk, const Path& project, int longestWait = LongestWait, const Waiter& waiter = {});
    ~ProjectLock();
    ProjectLock(const ProjectLock&) = delete;
    ProjectLock& operator=(const ProjectLock&) = delete;

private:
    std::unique_ptr<HeldFile> m_file;
};

}  // namespace plant
