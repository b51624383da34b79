#include "Recovery.h"

#include <algorithm>
#include <tuple>

#include "DocumentName.h"
#include "Sealed.h"

namespace plant {

namespace {

constexpr const char* NameStart = "unsaved changes ";
constexpr const char* NameEnd = ".kzrecovery";

// Process numbers are given away again, so a name may be taken by what an earlier process has left.
Path FileName(unsigned long process, unsigned number)
{
    std::string name = NameStart + std::to_string(process);
    if (number > 1)
        name.append("-").append(std::to_string(number));
    return name + NameEnd;
}

bool IsRecovery(const KZFileEntry& entry)
{
    const Path start(NameStart);
    const Path end(NameEnd);
    const Path::string_type& name = entry.name.native();
    return entry.kind == KZFileEntry::Kind::File && name.starts_with(start.native()) && name.ends_with(end.native());
}

std::unique_ptr<HeldFile> HoldNewFile(Disk& disk, const Path& folder)
{
    for (unsigned number = 1;; ++number) {
        const Path file = folder / FileName(KZProcessNumber(), number);
        if (disk.Find(file))
            continue;
        std::unique_ptr<HeldFile> held = disk.Hold(file, KZHold::File);
        // Another process, of a machine with the same number, may have come first and even be gone again.
        if (held && held->Read().empty())
            return held;
    }
}

void TakeFile(Disk& disk, const Path& file, std::vector<FoundRecovery>& found)
{
    std::unique_ptr<HeldFile> held = disk.Hold(file, KZHold::ExistingFile);
    if (!held)
        return;
    const std::optional<KZFileEntry> entry = disk.Find(file);
    if (!entry || entry->size > LargestRecoveryFile)
        throw Refusal(IDS_PLANT_DAMAGED, {Shown(file)});
    std::optional<Unsaved> unsaved = ReadRecovery(held->Read(), file);
    if (unsaved)
        found.push_back({file, std::move(*unsaved), std::move(held)});
    else
        held->Remove();
}

}  // namespace

void RecoveryFile::Store(const Unsaved& unsaved)
{
    const std::string text = UnsavedText(unsaved, m_folder);
    if (!m_held)
        m_held = HoldNewFile(m_disk, m_folder);
    const bool isFirst = m_newest.sequence == 0;
    const RecoveryRecord next{m_newest.sequence + 1, PlaceBeside(m_newest, text.size()), text.size(), HashOf(text)};
    const std::string record = RecordText(next);
    m_held->Write(next.place, text);
    m_held->Write(PlaceOfRecord(next.sequence), record);
    m_newest = next;
    if (isFirst)
        m_held->Write(PlaceOfRecord(next.sequence + 1), record);
}

void RecoveryFile::Remove() noexcept
{
    if (m_held)
        m_held->Remove();
    m_held.reset();
    m_newest = {};
}

Recoveries FindRecoveries(Disk& disk, const Path& projectFolder)
{
    std::vector<KZFileEntry> entries = disk.List(projectFolder);
    std::erase_if(entries, [](const KZFileEntry& entry) { return !IsRecovery(entry); });
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    Recoveries all;
    for (const KZFileEntry& entry : entries) {
        try {
            TakeFile(disk, projectFolder / entry.name, all.found);
        } catch (const Refusal& refusal) {
            all.refused.push_back(refusal.What());
        }
    }
    std::sort(all.found.begin(), all.found.end(), [](const auto& a, const auto& b) {
        return std::tie(a.unsaved.time, a.file) < std::tie(b.unsaved.time, b.file);
    });
    return all;
}

void Discard(FoundRecovery& found) noexcept
{
    if (found.held)
        found.held->Remove();
    found.held.reset();
}

}  // namespace plant
