#include "ProjectLock.h"

#include <chrono>
#include <utility>

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

// Tells the waiter once that there is a wait, and of its end however that comes.
class Notice {
public:
    explicit Notice(const ProjectLock::Waiter& waiter) noexcept : m_waiter(waiter) {}
    ~Notice()
    {
        if (m_isTold)
            m_waiter(false);
    }
    Notice(const Notice&) = delete;
    Notice& operator=(const Notice&) = delete;

    void Give()
    {
        if (!m_waiter || std::exchange(m_isTold, true))
            return;
        m_waiter(true);
    }

private:
    const ProjectLock::Waiter& m_waiter;
    bool m_isTold = false;
};

}  // namespace

ProjectLock::ProjectLock(Disk& disk, const Path& project, int longestWait, const Waiter& waiter)
{
    const Path file = project / "project.lock";
    const Clock::time_point start = Clock::now();
    Notice notice(waiter);
    for (;;) {
        const Clock::duration waited = Clock::now() - start;
        m_file = TryToHold(disk, file, waited);
        if (m_file)
            return;
        if (waited >= std::chrono::milliseconds(longestWait))
            throw Refusal(IDS_PLANT_LOCKED, {Shown(file)});
        if (waited >= std::chrono::milliseconds(NoticeableWait))
            notice.Give();
        KZPause(Pause);
    }
}

ProjectLock::~ProjectLock()
{
    m_file->Remove();
}

}  // namespace plant
