#include "Project.h"

#include <algorithm>

#include "Commit.h"
#include "DocumentName.h"
#include "KZMainCfg.h"
#include "StoredProject.h"

namespace plant {

namespace {

const std::string Main(MainDocument);

}  // namespace

Project::Project(const Path& folder, Disk& disk, MainIs main)
    : m_disk(disk), m_folder(ExistingFolder(folder)), m_name(Shown(m_folder.filename())), m_seen(disk, m_folder),
      m_history(disk, m_folder), m_recovery(disk, m_folder)
{
    FinishInterruptedCommit(m_disk, m_folder);
    try {
        Open(*KZMainCfg::Get(), ReadMain(m_seen), m_devices);
    } catch (const Refusal&) {
        if (main == MainIs::Needed)
            throw;
    }
    KZMainCfg::SetProjectFolder(KZBasicString(Shown(m_folder)));
    KZMainCfg::Get()->SetCommitListener(this);
}

Project::~Project()
{
    KZMainCfg::Get()->SetCommitListener(nullptr);
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
    ParseDocument(document, bytes, file);
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
        ParseDocument(rehearsal, *bytes, FileOf(m_folder, name));
}

// Without memory the document stays what it is.
void Project::ReplaceMain(const std::string& bytes, DeviceList devices)
{
    ParseDocument(*KZMainCfg::Get(), bytes, m_folder / MainDocument);
    m_devices = std::move(devices);
}

std::size_t Project::DeviceByName(std::wstring_view name) const
{
    return plant::DeviceByName(m_devices, name, m_folder / MainDocument);
}

std::size_t Project::DeviceByNameOrId(std::wstring_view text) const
{
    return plant::DeviceByNameOrId(m_devices, text, m_folder / MainDocument);
}

void Project::ReadDevice(const std::string& name, XmlDocument& document, SeenDocuments& seen) const
{
    const auto pending = m_pending.find(name);
    const std::optional<std::string> bytes = pending == m_pending.end() ? seen.Read(name) : pending->second;
    if (bytes && !bytes->empty())
        ParseDocument(document, *bytes, FileOf(m_folder, name));
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
    const ProjectLock lock = Lock();
    FinishCommit(m_disk, m_folder, lock);
    Change change = m_history.Restoring(number);
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
    TellAll();
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
    TellAll();
}

}  // namespace plant
