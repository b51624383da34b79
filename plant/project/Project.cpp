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

DeviceList Project::Rehearse(const std::string& mainBytes) const
{
    XmlDocument rehearsal(L"configuration");
    DeviceList devices;
    Open(rehearsal, mainBytes, devices);
    return devices;
}

// A document that is refused must not take the place of the one that is shown, hence the rehearsal.
void Project::ReplaceMain(const std::string& bytes)
{
    DeviceList devices = Rehearse(bytes);
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

void Project::ReadDeviceDocument(const std::string& name, XmlDocument& document)
{
    const auto pending = m_pending.find(name);
    const std::optional<std::string> bytes = pending == m_pending.end() ? m_seen.Read(name) : pending->second;
    if (bytes && !bytes->empty())
        Parse(document, *bytes, FileOf(m_folder, name));
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

// Takes out of the change what the files hold already.
// Returns the documents of the rest that another program has changed since they were read.
std::vector<std::string> Project::ForeignIn(Change& change)
{
    std::vector<std::string> foreign;
    for (auto document = change.begin(); document != change.end();) {
        const std::optional<std::string> bytes = m_disk.Read(FileOf(m_folder, document->first));
        if (bytes == document->second) {
            m_seen.Wrote(document->first, bytes);
            document = change.erase(document);
            continue;
        }
        if (m_seen.Differs(document->first, bytes))
            foreign.push_back(document->first);
        ++document;
    }
    return foreign;
}

Project::Outcome Project::Write(Change change, const std::string& cause)
{
    const Change whole = change;
    std::vector<std::string> foreign;
    {
        const ProjectLock lock(m_disk, m_folder);
        FinishCommit(m_disk, m_folder, lock);
        foreign = ForeignIn(change);
        if (foreign.empty()) {
            CommitUnderLock(lock, std::move(change), cause);
            Written(whole);
            return Outcome::Done;
        }
    }
    // Nobody waits for the lock while a person thinks.
    if (!m_user)
        throw Refusal(IDS_PLANT_FOREIGN_CHANGES, {FromUtf8(Joined(foreign, ", "))});
    switch (m_user->AskAboutForeignChanges(foreign)) {
    case ProjectUser::Answer::Overwrite:
        KeepMine(foreign);
        return Write(whole, cause);
    case ProjectUser::Answer::TakeTheirs:
        TakeTheirs(foreign);
        for (const std::string& name : foreign)
            change.erase(name);
        return change.empty() || Write(std::move(change), cause) != Outcome::Cancelled ? Outcome::TookTheirs
                                                                                       : Outcome::Cancelled;
    default:
        return Outcome::Cancelled;
    }
}

void Project::CommitUnderLock(const ProjectLock& lock, Change change, const std::string& cause)
{
    if (change.empty())
        return;
    SeenDocuments seen = m_seen;
    for (const auto& [name, bytes] : change)
        seen.Wrote(name, bytes);
    History::NewEntry entry = m_history.Keep(cause, change);
    change[entry.name] = std::move(entry.bytes);
    Commit(m_disk, m_folder, lock, change);
    m_seen = std::move(seen);
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
    Change waiting = Waiting();
    if (waiting.empty())
        return m_recovery.Remove();
    Unsaved unsaved{m_disk.Now(), std::move(waiting), {}};
    for (const auto& [name, bytes] : unsaved.documents)
        unsaved.before[name] = m_seen.HashSeen(name);
    m_recovery.Store(unsaved);
}

void Project::ProtectOrTell() noexcept
{
    try {
        Protect();
    } catch (const Refusal& refusal) {
        if (m_user)
            m_user->TellUnprotected(refusal.What());
    } catch (const std::exception&) {
        // Without memory for the file there is none for a message: what is unsaved is what it was.
    }
}

void Project::TakeTheirs(const std::vector<std::string>& documents)
{
    SeenDocuments seen = m_seen;
    std::optional<std::string> main;
    for (const std::string& name : documents) {
        if (name == MainDocument) {
            main = ReadMain(seen);
            continue;
        }
        XmlDocument rehearsal(L"device");
        if (const std::optional<std::string> bytes = seen.Read(name); bytes && !bytes->empty())
            Parse(rehearsal, *bytes, FileOf(m_folder, name));
    }
    if (main)
        ReplaceMain(*main);
    m_seen = std::move(seen);
    for (const std::string& name : documents)
        m_pending.erase(name);
    ProtectOrTell();
}

void Project::KeepMine(const std::vector<std::string>& documents)
{
    for (const std::string& name : documents)
        m_seen.Read(name);
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
void Project::RequireOpenable(const std::string& mainBytes, int number) const
{
    try {
        Rehearse(mainBytes);
    } catch (const Refusal&) {
        throw Refusal(IDS_PLANT_HISTORY_BROKEN, {std::to_wstring(number)});
    }
}

Change Project::Restore(int number, bool dryRun)
{
    const ProjectLock lock(m_disk, m_folder);
    FinishCommit(m_disk, m_folder, lock);
    const Change change = m_history.Restoring(number);
    if (const auto main = change.find(Main); main != change.end() && main->second)
        RequireOpenable(*main->second, number);
    if (dryRun)
        return change;
    CommitUnderLock(lock, change, "restore");
    m_pending.clear();
    ReplaceMain(ReadMain(m_seen));
    ProtectOrTell();
    return change;
}

std::vector<std::string> Project::ChangedSince(const FoundRecovery& found)
{
    std::vector<std::string> changed;
    for (const auto& [name, hash] : found.unsaved.before) {
        const std::optional<std::string> bytes = m_disk.Read(FileOf(m_folder, name));
        if ((bytes ? std::optional(HashOf(*bytes)) : std::nullopt) != hash)
            changed.push_back(name);
    }
    return changed;
}

void Project::Recover(FoundRecovery& found)
{
    Change documents = found.unsaved.documents;
    auto main = documents.extract(Main);
    if (!main.empty() && !main.mapped())
        throw Refusal(IDS_PLANT_DAMAGED, {Shown(found.file)});
    // The user knows what has become of the documents since: only later changes are foreign.
    KeepMine(NamesIn(found.unsaved.documents));
    if (!main.empty())
        ReplaceMain(*main.mapped());
    m_pending = std::move(documents);
    if (!main.empty())
        KZMainCfg::Get()->SetDirty(true);
    Protect();
    plant::Discard(found);
}

}  // namespace plant
