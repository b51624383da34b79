#include "ProjectLock.h"

#include <chrono>

#include "DocumentName.h"
#include "text/Refusal.h"

namespace plant {

namespace {

using Clock = std::chrono::steady_clock;

// Windows denies for a moment a file that is about to go.
constexpr std::chrono::milliseconds LongestDenial{500};
constexpr int Pause = 10;  // milliseconds

// Null: not now.
std::unique_ptr<HeldFile> TryToHold(Disk& disk, const Path& file, Clock::duration waited)
{
    try {
        return disk.Hold(file, KZHold::Temporary);
    } catch (const Refusal& refusal) {
        if (refusal.What().text != IDS_PLANT_FILE_DENIED || waited >= LongestDenial)
            throw;
        return nullptr;
    }
}

}  // namespace

ProjectLock::ProjectLock(Disk& disk, const Path& project, int longestWait)
{
    const Path file = project / "project.lock";
    const Clock::time_point start = Clock::now();
    for (;;) {
        const Clock::duration waited = Clock::now() - start;
        m_file = TryToHold(disk, file, waited);
        if (m_file)
            return;
        if (waited >= std::chrono::milliseconds(longestWait))
            throw Refusal(IDS_PLANT_LOCKED, {Shown(file)});
        KZPause(Pause);
    }
}

ProjectLock::~ProjectLock()
{
    m_file->Remove();
}

}  // namespace plant
