// A change of several documents, carried out whole or not at all.
//
// The new documents are written beside the project ("commit/1", …) and the old ones given a second name there
// ("commit/1.old"); the journal is moved into place, which is the moment from which the change counts; the documents
// are moved over the old ones; the journal is removed. A process killed before that moment leaves the old state, one
// killed later leaves a journal, which the next to open the project carries out.
#pragma once

#include "Change.h"
#include "Disk.h"
#include "ProjectLock.h"

namespace plant {

// Whether a process has left a change half carried out, or a commit is under way.
[[nodiscard]] bool HasJournal(Disk& disk, const Path& project);

// Carries out what is left of a journal, under the project's lock. A journal that is damaged, names what is no document
// or lacks what it is to put into place is refused, and then nothing is moved, written or removed.
void FinishCommit(Disk& disk, const Path& project, const ProjectLock& lock);

// The same for whoever has no lock, which is taken only where there is a journal.
void FinishInterruptedCommit(Disk& disk, const Path& project);

// Carries out a change, under the lock and after FinishCommit. The change may hold an entry of the history besides
// documents. When a document cannot be put into place, those that were are put back, and Refusal is thrown with
// everything as it was. Should that fail too, Refusal names the journal, which FinishCommit will carry out.
void Commit(Disk& disk, const Path& project, const ProjectLock& lock, const Change& change);

}  // namespace plant
