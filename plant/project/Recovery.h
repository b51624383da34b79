// Unsaved changes on disk, so that they outlive their process.
//
// Each running process keeps its own file in the project's folder, "unsaved changes 1234.kzrecovery" with its number in
// the name, and holds it as long as it lives. Whoever can hold such a file knows that its owner is gone.
#pragma once

#include <memory>
#include <vector>

#include "Disk.h"
#include "RecoveryFormat.h"
#include "text/Refusal.h"

namespace plant {

// The owner's side.
class RecoveryFile {
public:
    // Makes no file yet.
    RecoveryFile(Disk& disk, Path projectFolder) : m_disk(disk), m_folder(std::move(projectFolder)) {}
    // Leaves the file: only Remove takes it away.
    ~RecoveryFile() = default;
    RecoveryFile(const RecoveryFile&) = delete;
    RecoveryFile& operator=(const RecoveryFile&) = delete;

    // Puts a state on disk; the file is made when there is none. Throws Refusal when it cannot. What was stored before
    // is then still there, unless it was the disk's last answer alone that failed and the new state is.
    void Store(const Unsaved& unsaved);
    // Takes the file away, after a save or when the changes are given up.
    void Remove() noexcept;

private:
    Disk& m_disk;
    Path m_folder;
    std::unique_ptr<HeldFile> m_held;
    RecoveryRecord m_newest;  // what counts in the file
};

// What a process that is gone has left. Nobody else finds it as long as it is held.
struct FoundRecovery {
    Path file;
    Unsaved unsaved;
    std::unique_ptr<HeldFile> held;
};

struct Recoveries {
    std::vector<FoundRecovery> found;  // oldest first
    std::vector<Message> refused;      // one for each file that cannot be used; it is left as it is
};

// What processes that are gone have left in a project's folder. Files that have an owner are left out. One whose owner
// was gone before it had stored anything is removed. Throws Refusal when the folder cannot be read.
[[nodiscard]] Recoveries FindRecoveries(Disk& disk, const Path& projectFolder);

// Takes a found one away for good.
void Discard(FoundRecovery& found) noexcept;

}  // namespace plant
