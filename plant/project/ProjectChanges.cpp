// What is changed in a project and not saved: who hears of it, and how it is kept from being lost.
#include "DocumentName.h"
#include "KZMainCfg.h"
#include "Project.h"
#include "ProjectFolder.h"
#include "StoredProject.h"

namespace plant {

bool Project::IsReadOnly()
{
    if (!m_isReadOnly)
        m_isReadOnly = !CanBeWritten(m_disk, m_folder);
    return *m_isReadOnly;
}

void Project::RequireWritable()
{
    if (IsReadOnly())
        throw Refusal(IDS_PLANT_PROJECT_READ_ONLY, {Shown(m_folder)});
}

void Project::KeepUnsaved(Change devices, bool isMainChanged) noexcept
{
    while (!devices.empty()) {
        auto inserted = m_pending.insert(devices.extract(devices.begin()));
        const auto place = inserted.position;
        if (!inserted.inserted)
            place->second = std::move(inserted.node.mapped());
        if (m_seen.Saw(place->first, place->second))
            m_pending.erase(place);
    }
    if (isMainChanged)
        KZMainCfg::Get()->SetDirty(true);
    else
        ProtectOrTell();
}

void Project::ReadDevicesAnew()
{
    DeviceList devices = ReadDevices(*KZMainCfg::Get(), Shown(m_folder / MainDocument));
    std::swap(m_devices, devices);
    if (m_doing && !m_doing->devicesBefore)
        m_doing->devicesBefore = std::move(devices);
}

std::optional<std::string> Project::Content(const std::string& name)
{
    if (const auto pending = m_pending.find(name); pending != m_pending.end())
        return pending->second;
    return ReadSaved(name);
}

// Who has the document open may have read an earlier content, and is asked before he writes over this one.
std::optional<std::string> Project::ReadSaved(const std::string& name)
{
    SeenDocuments seen(m_disk, m_folder);
    std::optional<std::string> bytes = seen.Read(name);
    m_seen.Complete(std::move(seen));
    return bytes;
}

std::optional<std::string> Project::Peek(const std::string& name) const
{
    const auto pending = m_pending.find(name);
    return pending != m_pending.end() ? pending->second : SavedContent(name);
}

void Project::AddPending(DocumentFiles& files) const
{
    for (const auto& [name, bytes] : m_pending) {
        if (bytes)
            files.try_emplace(name);
        else
            files.erase(name);
    }
}

void Project::OnCommit(XmlDocument&) noexcept
{
    ProtectOrTell();
}

void Project::Discard() noexcept
{
    m_isProtectionDue = false;
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
    m_isProtectionDue = m_user && IsDirty() && m_user->WillProtect();
    if (!m_isProtectionDue)
        ProtectNow();
}

void Project::ProtectIfDue() noexcept
{
    if (m_isProtectionDue)
        ProtectNow();
}

void Project::ProtectNow() noexcept
{
    m_isProtectionDue = false;
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

void Project::Tell(const ProjectChange& change) noexcept
{
    if (m_doing) {
        m_doing->isAll = m_doing->isAll || change.isAll;
        return;
    }
    for (ProjectListener* const listener : m_listeners)
        listener->OnProjectChanged(change);
}

// The documents are other ones than those that were compared.
void Project::TellAll() noexcept
{
    if (IsDirty())
        m_savedDevices.Forget();
    else
        m_savedDevices.AllSaved();
    Tell({.isAll = true});
}

std::optional<std::uint64_t> Project::HashNow(const std::string& name) const
{
    const auto pending = m_pending.find(name);
    return pending == m_pending.end() ? m_seen.HashSeen(name) : DocumentHash(pending->second);
}

DocumentHashes Project::HashesNow() const
{
    return [this](const std::string& name) { return HashNow(name); };
}

void Project::RememberSaved(std::span<const KZBasicString> driverIds)
{
    if (!m_savedDevices.IsKnown())
        LearnSaved();
    m_savedDevices.Remember(*KZMainCfg::Get(), driverIds, HashesNow());
}

void Project::CompareSaved(std::span<const KZBasicString> driverIds) noexcept
{
    try {
        m_savedDevices.Compare(*KZMainCfg::Get(), driverIds, HashesNow());
    } catch (const std::bad_alloc&) {
        // They are found out anew when somebody asks.
    }
}

void Project::LearnSaved()
{
    XmlDocument saved(L"configuration");
    StoredProject(m_folder, m_disk).ReadMain(saved);
    std::vector<DeviceFault> faults;
    DriverIds all;
    for (const KZDeviceIdentity& device : m_devices)
        all.insert(device.driverId);
    for (const KZDeviceIdentity& device : ReadDevices(saved, {}, faults))
        all.insert(device.driverId);
    m_savedDevices.Learn(
        saved, *KZMainCfg::Get(), all, [this](const std::string& name) { return m_seen.HashSeen(name); }, HashesNow());
}

const DriverIds& Project::ChangedDevices() noexcept
{
    try {
        if (!m_savedDevices.IsKnown())
            LearnSaved();
    } catch (const std::exception&) {
        // What is known is shown, and the next call tries again.
    }
    return m_savedDevices.Changed();
}

}  // namespace plant
