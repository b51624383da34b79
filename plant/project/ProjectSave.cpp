// How a project writes its documents, and what becomes of those that another program has changed.
#include "Commit.h"
#include "DocumentName.h"
#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "Project.h"

namespace plant {

Project::Outcome Project::Write(Change change, const std::string& cause)
{
    ForeignChanges overwritten;  // what the user lets go of
    Theirs theirs{{}, SeenDocuments(m_disk, m_folder), {}, {}};
    for (;;) {
        const ForeignChanges foreign = WriteUnlessForeign(change, cause, overwritten);
        if (foreign.empty())
            break;
        std::vector<std::string> names;
        for (const auto& [name, hash] : foreign)
            names.push_back(name);
        if (!m_user)
            throw Refusal(IDS_PLANT_FOREIGN_CHANGES, {FromUtf8(Joined(names, ", "))});
        switch (m_user->AskAboutForeignChanges(names)) {
        case ProjectUser::Answer::Overwrite:
            for (const auto& [name, hash] : foreign)
                overwritten[name] = hash;
            break;
        case ProjectUser::Answer::TakeTheirs:
            for (const std::string& name : names)
                change.erase(name);
            names.insert(names.end(), theirs.names.begin(), theirs.names.end());
            theirs = LookAt(names);
            break;
        default:
            return Outcome::Cancelled;
        }
    }
    if (theirs.names.empty())
        return Outcome::Done;
    Take(std::move(theirs));
    return Outcome::TookTheirs;
}

// What is written at once needs no protection before.
Project::Outcome Project::SaveTogether(Change devices, bool isMainChanged, const std::string& cause)
{
    try {
        Change documents = devices;
        documents.merge(Waiting());
        if (isMainChanged)
            documents[std::string(MainDocument)] = KZMainCfg::Get()->Serialize();
        const Outcome outcome = Write(std::move(documents), cause);
        if (outcome == Outcome::Cancelled)
            KeepUnsaved(std::move(devices), isMainChanged);
        return outcome;
    } catch (...) {
        KeepUnsaved(std::move(devices), isMainChanged);
        throw;
    }
}

ProjectLock Project::Lock() const
{
    const auto tell = [this](bool isWaiting) {
        if (m_user)
            m_user->TellWaiting(isWaiting);
    };
    return {m_disk, m_folder, ProjectLock::LongestWait, tell};
}

// Writes nothing when another program has changed some of the documents since they were read, other than to what may be
// overwritten, and returns these. Nobody waits for the lock while a person thinks.
ForeignChanges Project::WriteUnlessForeign(const Change& change, const std::string& cause,
                                           const ForeignChanges& overwritten)
{
    if (!change.empty()) {
        const ProjectLock lock = Lock();
        FinishCommit(m_disk, m_folder, lock);
        Change differing = change;
        ForeignChanges foreign = ForeignIn(differing, overwritten);
        if (!foreign.empty())
            return foreign;
        CommitUnderLock(lock, differing, cause);
    }
    Written(change);
    return {};
}

// Takes out of the change what the files hold already.
ForeignChanges Project::ForeignIn(Change& change, const ForeignChanges& overwritten)
{
    ForeignChanges foreign;
    for (auto document = change.begin(); document != change.end();) {
        const auto& [name, bytes] = *document;
        const std::optional<std::string> present = m_disk.Read(FileOf(m_folder, name));
        if (present == bytes) {
            m_seen.Wrote(name, bytes);
            document = change.erase(document);
            continue;
        }
        const auto hash = DocumentHash(present);
        const auto known = overwritten.find(name);
        if (m_seen.Differs(name, hash) && (known == overwritten.end() || known->second != hash))
            foreign[name] = hash;
        ++document;
    }
    return foreign;
}

void Project::CommitUnderLock(const ProjectLock& lock, const Change& change, const std::string& cause)
{
    if (change.empty())
        return;
    History::NewEntry entry = m_history.Keep(cause, change);
    Change whole = change;
    whole[entry.name] = std::move(entry.bytes);
    for (const auto& [name, bytes] : change)
        m_seen.WillWrite(name, bytes);
    Commit(m_disk, m_folder, lock, whole);
    for (const auto& [name, bytes] : change)
        m_seen.Wrote(name, bytes);
    try {
        m_history.Prune();
    } catch (const std::exception&) {
        // The next save tries again.
    }
}

// The documents are on the disk as they are here.
void Project::Written(const Change& documents) noexcept
{
    for (const auto& [name, bytes] : documents) {
        if (name == MainDocument)
            KZMainCfg::Get()->SetDirty(false);
        else
            m_pending.erase(name);
    }
    if (IsDirty())
        m_savedDevices.Saved(*KZMainCfg::Get(), documents, HashesNow());
    else
        m_savedDevices.AllSaved();
    ProtectOrTell();
    Tell({});
}

Project::Theirs Project::LookAt(const std::vector<std::string>& documents) const
{
    Theirs theirs{documents, SeenDocuments(m_disk, m_folder), {}, {}};
    for (const std::string& name : documents) {
        if (name == MainDocument) {
            theirs.main = ReadMain(theirs.seen);
            theirs.devices = Rehearse(*theirs.main);
        } else {
            RehearseDevice(name, theirs.seen.Read(name));
        }
    }
    return theirs;
}

void Project::Take(Theirs theirs)
{
    if (theirs.main)
        ReplaceMain(*theirs.main, std::move(theirs.devices));
    m_seen.Replace(std::move(theirs.seen));
    for (const std::string& name : theirs.names)
        m_pending.erase(name);
    ProtectOrTell();
    TellAll();
}

void Project::TakeTheirs(const std::vector<std::string>& documents)
{
    Take(LookAt(documents));
}

}  // namespace plant
