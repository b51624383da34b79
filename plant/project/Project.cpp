#include "Project.h"

#include "Commit.h"
#include "DocumentName.h"
#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "Sealed.h"

namespace plant {

namespace {

namespace fs = std::filesystem;

const std::string Main(MainDocument);

Path ExistingFolder(const Path& folder)
{
    std::error_code error;
    if (!fs::is_directory(folder, error))
        throw Refusal(IDS_PLANT_NO_FOLDER, {Shown(folder)});
    Path absolute = fs::absolute(folder, error).lexically_normal();
    return absolute.has_filename() ? absolute : absolute.parent_path();
}

void Parse(XmlDocument& document, const std::string& bytes, const Path& file)
{
    if (const KZDocumentResult parsed = document.Parse(bytes); !parsed)
        throw Refusal(IDS_PLANT_BROKEN_DOCUMENT, {Shown(file) + L": " + parsed.message.c_str()});
}

}  // namespace

Project::Project(const Path& folder, Disk& disk)
    : m_disk(disk), m_folder(ExistingFolder(folder)), m_name(Shown(m_folder.filename())), m_seen(disk, m_folder),
      m_history(disk, m_folder), m_recovery(disk, m_folder)
{
    if (HasJournal(m_disk, m_folder))
        FinishCommit(m_disk, m_folder, ProjectLock(m_disk, m_folder));
    Open(*KZMainCfg::Get(), ReadMain(m_seen), m_devices);
    KZMainCfg::SetProjectFolder(KZBasicString(Shown(m_folder)));
    KZMainCfg::Get()->SetCommitListener(this);
}

Project::~Project()
{
    KZMainCfg::Get()->SetCommitListener(nullptr);
}

void Project::OnCommit(XmlDocument&) noexcept
{
    ProtectOrTell();
}

std::string Project::ReadMain(SeenDocuments& seen) const
{
    std::optional<std::string> bytes = seen.Read(Main);
    if (!bytes)
        throw Refusal(IDS_PLANT_NO_MAIN, {Shown(m_folder / MainDocument)});
    return std::move(*bytes);
}

void Project::Open(XmlDocument& document, const std::string& bytes, DeviceList& devices) const
{
    const Path file = m_folder / MainDocument;
    Parse(document, bytes, file);
    devices = ReadDevices(document, Shown(file));
}

// A document that is refused must not take the place of the one that is shown.
DeviceList Project::Rehearse(const std::string& mainBytes) const
{
    XmlDocument rehearsal(L"configuration");
    DeviceList devices;
    Open(rehearsal, mainBytes, devices);
    return devices;
}

void Project::RehearseDevice(const std::string& name, const std::optional<std::string>& bytes) const
{
    XmlDocument rehearsal(L"device");
    if (bytes && !bytes->empty())
        Parse(rehearsal, *bytes, FileOf(m_folder, name));
}

// Without memory the document stays what it is.
void Project::ReplaceMain(const std::string& bytes, DeviceList devices)
{
    Parse(*KZMainCfg::Get(), bytes, m_folder / MainDocument);
    m_devices = std::move(devices);
}

std::size_t Project::DeviceByName(std::wstring_view name) const
{
    std::wstring known;
    for (std::size_t index = 0; index < m_devices.size(); ++index) {
        const std::wstring_view found = m_devices[index].name.View();
        if (found == name)
            return index;
        known.append(known.empty() ? L"" : L", ").append(found);
    }
    throw Refusal(IDS_PLANT_NO_DEVICE, {std::wstring(name), Shown(m_folder / MainDocument), known});
}

void Project::ReadDevice(const std::string& name, XmlDocument& document, SeenDocuments& seen) const
{
    const auto pending = m_pending.find(name);
    const std::optional<std::string> bytes = pending == m_pending.end() ? seen.Read(name) : pending->second;
    if (bytes && !bytes->empty())
        Parse(document, *bytes, FileOf(m_folder, name));
}

void Project::ReadDeviceDocument(const std::string& name, XmlDocument& document)
{
    SeenDocuments seen(m_disk, m_folder);
    ReadDevice(name, document, seen);
    m_seen.Replace(std::move(seen));
}

// Who has the document open may have read an earlier content, and is asked before he writes over this one.
void Project::ReadDeviceToShow(const std::string& name, XmlDocument& document)
{
    SeenDocuments seen(m_disk, m_folder);
    ReadDevice(name, document, seen);
    m_seen.Complete(std::move(seen));
}

bool Project::IsDirty() const noexcept
{
    return KZMainCfg::Get()->IsDirty() || !m_pending.empty();
}

bool Project::IsUnsaved(const std::string& name) const noexcept
{
    return name == MainDocument ? KZMainCfg::Get()->IsDirty() : m_pending.contains(name);
}

Change Project::Waiting() const
{
    Change waiting = m_pending;
    if (KZMainCfg::Get()->IsDirty())
        waiting[Main] = KZMainCfg::Get()->Serialize();
    return waiting;
}

Project::Outcome Project::Save(const std::string& cause)
{
    return Write(Waiting(), cause);
}

Project::Outcome Project::WriteDocument(const std::string& name, const XmlDocument& document, const std::string& cause)
{
    return Write({{name, document.Serialize()}}, cause);
}

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

// Writes nothing when another program has changed some of the documents since they were read, other than to what may be
// overwritten, and returns these. Nobody waits for the lock while a person thinks.
ForeignChanges Project::WriteUnlessForeign(const Change& change, const std::string& cause,
                                           const ForeignChanges& overwritten)
{
    if (!change.empty()) {
        const ProjectLock lock(m_disk, m_folder);
        FinishCommit(m_disk, m_folder, lock);
        Change differing = change;
        ForeignChanges foreign = ForeignIn(differing, overwritten);
        if (!foreign.empty())
            return foreign;
        CommitUnderLock(lock, std::move(differing), cause);
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

void Project::CommitUnderLock(const ProjectLock& lock, Change change, const std::string& cause)
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
    ProtectOrTell();
}

void Project::Discard() noexcept
{
    m_recovery.Remove();
}

void Project::Protect()
{
    Protect(Waiting(), m_seen);
}

void Project::Protect(Change waiting, const SeenDocuments& seen)
{
    if (waiting.empty())
        return m_recovery.Remove();
    Unsaved unsaved{m_disk.Now(), std::move(waiting), {}};
    for (const auto& [name, bytes] : unsaved.documents)
        unsaved.before[name] = seen.HashSeen(name);
    m_recovery.Store(unsaved);
}

void Project::ProtectOrTell() noexcept
{
    Message why{IDS_PLANT_NO_MEMORY, {}};
    try {
        try {
            return Protect();
        } catch (const Refusal& refusal) {
            why = refusal.What();
        }
    } catch (const std::exception&) {
        // The message for that needs no memory.
    }
    if (m_user)
        m_user->TellUnprotected(why);
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
}

void Project::TakeTheirs(const std::vector<std::string>& documents)
{
    Take(LookAt(documents));
}

std::vector<HistoryEntry> Project::Entries()
{
    try {
        return m_history.Entries();
    } catch (const Refusal&) {
        // Another program's save may have let go of an entry meanwhile. Whoever may only read has no lock to take.
        const ProjectLock lock(m_disk, m_folder);
        return m_history.Entries();
    }
}

// A project that no editor can open would be out of reach of the next restore too.
DeviceList Project::RequireOpenable(const std::string& mainBytes, int number) const
{
    try {
        return Rehearse(mainBytes);
    } catch (const Refusal&) {
        throw Refusal(IDS_PLANT_HISTORY_BROKEN, {std::to_wstring(number)});
    }
}

Change Project::Restore(int number, bool dryRun)
{
    const ProjectLock lock(m_disk, m_folder);
    FinishCommit(m_disk, m_folder, lock);
    const Change change = m_history.Restoring(number);
    const auto main = change.find(Main);
    SeenDocuments seen(m_disk, m_folder);
    // Without a document it is as one that is broken.
    const std::string bytes = main == change.end() ? ReadMain(seen) : main->second.value_or("");
    DeviceList devices = RequireOpenable(bytes, number);
    if (dryRun)
        return change;
    CommitUnderLock(lock, change, "restore");
    m_pending.clear();
    try {
        ReplaceMain(bytes, std::move(devices));
    } catch (...) {
        // What is shown is not what the file holds: saving over it asks.
        m_seen.Forget(Main);
        throw;
    }
    m_seen.Replace(std::move(seen));
    ProtectOrTell();
    return change;
}

std::vector<std::string> Project::ChangedSince(FoundRecovery& found)
{
    std::vector<std::string> changed;
    for (auto& [name, hash] : found.unsaved.before) {
        const auto present = DocumentHash(m_disk.Read(FileOf(m_folder, name)));
        if (present != hash)
            changed.push_back(name);
        hash = present;
    }
    return changed;
}

void Project::Recover(FoundRecovery& found)
{
    Change documents = found.unsaved.documents;
    const auto main = documents.extract(Main);
    if (main && !main.mapped())
        throw Refusal(IDS_PLANT_DAMAGED, {Shown(found.file)});
    DeviceList devices = main ? Rehearse(*main.mapped()) : DeviceList{};
    for (const auto& [name, bytes] : documents)
        RehearseDevice(name, bytes);
    documents.merge(Change(m_pending));
    SeenDocuments seen = m_seen;
    for (const auto& [name, hash] : found.unsaved.before)
        seen.Assume(name, hash);
    Change waiting = found.unsaved.documents;
    waiting.merge(Waiting());
    Protect(std::move(waiting), seen);
    try {
        if (main)
            ReplaceMain(*main.mapped(), std::move(devices));
    } catch (...) {
        ProtectOrTell();
        throw;
    }
    m_pending = std::move(documents);
    m_seen = std::move(seen);
    if (main)
        KZMainCfg::Get()->SetDirty(true);
    plant::Discard(found);
}

}  // namespace plant
