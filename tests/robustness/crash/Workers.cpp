#include "Workers.h"

#include "CommittedChanges.h"
#include "KZXmlDocument.h"
#include "SavedContent.h"
#include "StoredChanges.h"
#include "project/Commit.h"
#include "project/Recovery.h"

namespace crash {

namespace {

void SaveDocuments(const std::filesystem::path& file, long last, const Report& report)
{
    XmlDocument document(L"configuration");
    for (long number = last + 1; document.Parse(ContentOf(number)) && document.Save(file); ++number)
        report(number);
}

void StoreChanges(const std::filesystem::path& folder, long last, const Report& report)
{
    plant::RecoveryFile file(plant::RealDisk(), folder);
    for (long number = last + 1;; ++number) {
        file.Store(ChangesOf(number));
        report(number);
    }
}

void CommitChanges(const std::filesystem::path& project, long last, const Report& report)
{
    plant::Disk& disk = plant::RealDisk();
    plant::History history(disk, project, CommittedHistory);
    for (long number = last + 1;; ++number) {
        const plant::ProjectLock lock(disk, project);
        plant::FinishCommit(disk, project, lock);
        plant::Change change = CommittedChange(number, DocumentsIn(disk, project));
        plant::History::NewEntry entry = history.Keep("worker", change);
        change[entry.name] = std::move(entry.bytes);
        plant::Commit(disk, project, lock, change);
        report(number);
        history.Prune();
    }
}

}  // namespace

const Worker DocumentSaver{"save", SaveDocuments};
const Worker ChangeStorer{"store", StoreChanges};
const Worker ChangeCommitter{"commit", CommitChanges};

}  // namespace crash
