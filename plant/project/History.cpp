#include "History.h"

#include <algorithm>
#include <set>

#include "KeptFolder.h"
#include "Sealed.h"
#include "text/Refusal.h"

namespace plant {

namespace {

using Kind = KZFileEntry::Kind;

// The numbers of an entry's predecessors, the base aside.
std::vector<int> TakeBelow(std::vector<int>& numbers, int entry)
{
    const auto end = std::lower_bound(numbers.begin(), numbers.end(), entry);
    std::vector<int> taken(numbers.begin(), end);
    numbers.erase(numbers.begin(), end);
    std::erase(taken, HistoryFolders::Base);
    return taken;
}

}  // namespace

History::History(Disk& disk, Path project, HistoryLimits limits)
    : m_disk(disk), m_project(std::move(project)), m_folders(disk, m_project), m_limits(limits)
{
}

std::uint64_t History::BytesIn(const HistoryFolders::Found& folders)
{
    std::uint64_t bytes = 0;
    for (const auto& [number, size] : folders.entries)
        bytes += size;
    for (const int number : folders.numbers) {
        for (const auto& [name, file] : DocumentFilesIn(m_disk, m_folders.Of(number)))
            bytes += file.size;
    }
    return bytes;
}

std::vector<HistoryEntry> History::Entries()
{
    std::vector<HistoryEntry> entries;
    for (const auto& [number, size] : m_folders.Look().entries)
        entries.push_back(m_folders.Read(number).entry);
    return entries;
}

History::NewEntry History::Keep(const std::string& cause, const Change& change)
{
    const HistoryFolders::Found folders = m_folders.Look();
    const int last = folders.entries.empty() ? 0 : folders.entries.rbegin()->first;
    const int number = last + 1;
    if (last == HistoryFolders::LastNumber)
        throw Refusal(IDS_PLANT_DAMAGED, {Shown(m_folders.EntryOf(last))});
    for (const int left : folders.numbers) {
        // A save that did not take place leaves the folder of its number; what is above has lost its manifest.
        if (left > number)
            throw Refusal(IDS_PLANT_DAMAGED, {Shown(m_folders.Of(left))});
    }
    const Manifest before = last == 0 ? Manifest{} : m_folders.Read(last);
    m_folders.Clear(number);

    Manifest manifest{{number, UtcText(m_disk.Now()), cause, {}}, {}};
    for (const auto& [name, bytes] : change)
        manifest.entry.documents.push_back(name);
    try {
        KeepProject(manifest, before, change);
    } catch (...) {
        try {
            m_folders.Clear(number);
        } catch (const std::exception&) {
            // The next call clears it.
        }
        throw;
    }
    return {number, HistoryFolders::NameOfEntry(number), WriteManifest(manifest)};
}

void History::KeepProject(Manifest& manifest, const Manifest& before, const Change& change)
{
    m_disk.MakeFolder(m_folders.Root());
    KeptFolder folder(m_disk, m_project, m_folders.Of(manifest.entry.number), before);
    std::set<std::string_view, NameLess> replaced;
    for (const auto& [name, bytes] : change)
        replaced.insert(name);
    for (const auto& [name, file] : DocumentFilesIn(m_disk, m_project)) {
        const bool isReplaced = replaced.contains(name);
        if (file.kind == Kind::File) {
            if (const auto kept = folder.Keep(name, file, isReplaced))
                manifest.project.emplace(name, *kept);
        } else if (isReplaced) {
            throw Refusal(IDS_PLANT_DOCUMENT_IS_LINK, {Shown(FileOf(m_project, name))});
        }
    }
}

void History::Prune()
{
    auto [numbers, entries] = m_folders.Look();
    if (entries.empty())
        return;
    std::uint64_t bytes = BytesIn({numbers, entries});
    const auto let = [&](std::uint64_t freed) { bytes -= std::min(bytes, freed); };
    // What a process that has ended here has not finished.
    const int oldest = entries.begin()->first;
    if (const std::vector<int> left = TakeBelow(numbers, oldest); !left.empty())
        let(Release(left, m_folders.Read(oldest)));
    while (entries.size() > 1 && (entries.size() > m_limits.entries || bytes > m_limits.bytes)) {
        const auto [number, size] = *entries.begin();
        entries.erase(entries.begin());
        const Manifest next = m_folders.Read(entries.begin()->first);
        m_disk.Remove(m_folders.EntryOf(number));
        let(size + Release(TakeBelow(numbers, next.entry.number), next));
    }
}

// Empties folders below the oldest entry. What the entry needs of them goes to the base, which then holds nothing else.
// Returns how many bytes less there are.
std::uint64_t History::Release(const std::vector<int>& numbers, const Manifest& oldest)
{
    const Path baseFolder = m_folders.Of(HistoryFolders::Base);
    const DocumentFiles own = DocumentFilesIn(m_disk, m_folders.Of(oldest.entry.number));
    const auto isNeeded = [&](const std::string& name) { return oldest.project.contains(name) && !own.contains(name); };
    std::uint64_t freed = 0;
    DocumentFiles base;
    for (const auto& [name, file] : DocumentFilesIn(m_disk, baseFolder)) {
        if (isNeeded(name)) {
            base.emplace(name, file);
        } else {
            m_disk.Remove(FileOf(baseFolder, name));
            freed += file.size;
        }
    }
    m_disk.MakeFolder(baseFolder);
    m_disk.MakeFolder(baseFolder / DeviceFolder);
    for (const int number : numbers) {
        for (const auto& [name, file] : DocumentFilesIn(m_disk, m_folders.Of(number))) {
            const Path from = FileOf(m_folders.Of(number), name);
            if (isNeeded(name)) {
                m_disk.Move(from, FileOf(baseFolder, name));
                KZFileEntry& replaced = base[name];
                freed += replaced.size;
                replaced = file;
            } else {
                m_disk.Remove(from);
                freed += file.size;
            }
        }
        m_folders.RemoveIfEmpty(number);
    }
    m_folders.RemoveIfEmpty(HistoryFolders::Base);
    return freed;
}

// The content of a document in a folder, or nothing when it is another than an entry says.
std::optional<std::string> History::ReadIfSame(const Path& folder, const DocumentFiles::value_type& document,
                                               const KeptDocument& kept)
{
    const auto& [name, file] = document;
    if (file.kind != Kind::File || file.size != kept.size)
        return std::nullopt;
    std::optional<std::string> bytes = m_disk.Read(FileOf(folder, name));
    return bytes && bytes->size() == kept.size && HashOf(*bytes) == kept.hash ? std::move(bytes) : std::nullopt;
}

Change History::Restoring(int number)
{
    const HistoryFolders::Found folders = m_folders.Look();
    if (folders.entries.empty())
        throw Refusal(IDS_PLANT_HISTORY_EMPTY, {Shown(m_folders.Root())});
    if (!folders.entries.contains(number))
        throw Refusal(IDS_PLANT_HISTORY_NO_ENTRY,
                      {std::to_wstring(number), std::to_wstring(folders.entries.begin()->first),
                       std::to_wstring(folders.entries.rbegin()->first)});
    const Manifest manifest = m_folders.Read(number);

    Change change;
    std::vector<std::string> wanted;
    const DocumentFiles live = DocumentFilesIn(m_disk, m_project);
    for (const auto& [name, file] : live) {
        if (file.kind == Kind::File && !manifest.project.contains(name))
            change.emplace(name, std::nullopt);
    }
    for (const auto& [name, document] : manifest.project) {
        const auto file = live.find(name);
        if (file == live.end() || !ReadIfSame(m_project, *file, document))
            wanted.push_back(name);
    }
    AddKept(change, std::move(wanted), manifest, folders.numbers);
    return change;
}

// Adds the documents that are wanted with the content that the entry has of them.
void History::AddKept(Change& change, std::vector<std::string> wanted, const Manifest& manifest,
                      std::vector<int> numbers)
{
    std::erase_if(numbers, [&](int number) { return number > manifest.entry.number; });
    for (; !numbers.empty() && !wanted.empty(); numbers.pop_back()) {
        const Path folder = m_folders.Of(numbers.back());
        const DocumentFiles files = DocumentFilesIn(m_disk, folder);
        std::erase_if(wanted, [&](const std::string& name) {
            const auto file = files.find(name);
            if (file == files.end())
                return false;
            std::optional<std::string> bytes = ReadIfSame(folder, *file, manifest.project.at(name));
            if (!bytes)
                throw Refusal(IDS_PLANT_HISTORY_CHANGED, {Shown(FileOf(folder, name))});
            change.emplace(name, std::move(bytes));
            return true;
        });
    }
    if (!wanted.empty())
        throw Refusal(IDS_PLANT_HISTORY_CHANGED, {Shown(FileOf(m_folders.Of(manifest.entry.number), wanted.front()))});
}

}  // namespace plant
