#include "History.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <set>

#include "KeptFolder.h"
#include "Sealed.h"
#include "text/Refusal.h"

namespace plant {

namespace {

using Kind = KZFileEntry::Kind;

constexpr std::string_view HistoryFolder = "history";
constexpr std::string_view EntryFile = "entry";
// What is left of the entries that were let go of.
constexpr int Base = 0;
constexpr int LastNumber = 999'999'999;

std::string NumberName(int number)
{
    std::array<char, 16> text;
    return {text.data(), static_cast<std::size_t>(std::snprintf(text.data(), text.size(), "%06d", number))};
}

std::optional<int> NumberOf(std::string_view name)
{
    int number = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
    const bool isOurs = error == std::errc{} && number >= 0 && number <= LastNumber && NumberName(number) == name;
    return isOurs ? std::optional(number) : std::nullopt;
}

}  // namespace

History::History(Disk& disk, Path project, HistoryLimits limits)
    : m_disk(disk), m_project(std::move(project)), m_folder(m_project / HistoryFolder), m_limits(limits)
{
}

Path History::FolderOf(int number) const
{
    return m_folder / NumberName(number);
}

Path History::EntryOf(int number) const
{
    return FolderOf(number) / EntryFile;
}

std::vector<int> History::Numbers()
{
    const auto found = m_disk.Find(m_folder);
    if (found && found->kind != Kind::Folder)
        throw Refusal(IDS_PLANT_NOT_A_FOLDER, {Shown(m_folder)});
    std::vector<int> numbers;
    for (const KZFileEntry& entry : m_disk.List(m_folder)) {
        const std::optional<int> number = NumberOf(NameOf(entry.name));
        if (number && entry.kind != Kind::Folder)
            throw Refusal(IDS_PLANT_NOT_A_FOLDER, {Shown(m_folder / entry.name)});
        if (number)
            numbers.push_back(*number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

History::Folders History::Look()
{
    Folders folders;
    for (const int number : Numbers()) {
        const auto entry = number == Base ? std::nullopt : m_disk.Find(EntryOf(number));
        if (!entry) {
            (folders.entries.empty() ? folders.before : folders.after).push_back(number);
            continue;
        }
        // A manifest that is missing between others will be refused when it is read.
        for (const int missing : folders.after)
            folders.entries.emplace(missing, 0);
        folders.after.clear();
        folders.entries.emplace(number, entry->size);
    }
    if (folders.entries.empty())
        folders.before.swap(folders.after);
    return folders;
}

std::uint64_t History::BytesIn(const Folders& folders)
{
    std::uint64_t bytes = 0;
    const auto addDocuments = [&](int number) {
        for (const auto& [name, file] : DocumentFilesIn(m_disk, FolderOf(number)))
            bytes += file.size;
    };
    std::for_each(folders.before.begin(), folders.before.end(), addDocuments);
    for (const auto& [number, size] : folders.entries) {
        bytes += size;
        addDocuments(number);
    }
    return bytes;
}

Manifest History::Read(int number)
{
    const Path file = EntryOf(number);
    const std::wstring shown = Shown(file);
    constexpr std::uint64_t longest = 64 << 20;
    const auto found = m_disk.Find(file);
    if (!found || found->kind != Kind::File || found->size > longest)
        throw Refusal(IDS_PLANT_DAMAGED, {shown});
    Manifest manifest = ReadManifest(m_disk.Read(file).value_or(""), shown);
    if (manifest.entry.number != number)
        throw Refusal(IDS_PLANT_DAMAGED, {shown});
    return manifest;
}

std::vector<HistoryEntry> History::Entries()
{
    std::vector<HistoryEntry> entries;
    for (const auto& [number, size] : Look().entries)
        entries.push_back(Read(number).entry);
    return entries;
}

// What the history has put there goes; what is anybody else's stays.
void History::Clear(int number)
{
    const Path folder = FolderOf(number);
    for (const auto& [name, file] : DocumentFilesIn(m_disk, folder))
        m_disk.Remove(FileOf(folder, name));
    RemoveIfEmpty(folder);
}

void History::RemoveIfEmpty(const Path& folder)
{
    for (const Path& path : {folder / DeviceFolder, folder}) {
        const auto found = m_disk.Find(path);
        if (found && found->kind == Kind::Folder && m_disk.List(path).empty())
            m_disk.Remove(path);
    }
}

History::NewEntry History::Keep(const std::string& cause, const Change& change)
{
    const Folders folders = Look();
    const int last = folders.entries.empty() ? 0 : folders.entries.rbegin()->first;
    const int number = last + 1;
    for (const int unfinished : folders.after) {
        if (unfinished != number)
            throw Refusal(IDS_PLANT_DAMAGED, {Shown(EntryOf(unfinished))});
    }
    if (last == LastNumber)
        throw Refusal(IDS_PLANT_DAMAGED, {Shown(EntryOf(last))});
    const Manifest before = last == 0 ? Manifest{} : Read(last);
    Clear(number);

    Manifest manifest{{number, UtcText(m_disk.Now()), cause, {}}, {}};
    for (const auto& [name, bytes] : change)
        manifest.entry.documents.push_back(name);
    try {
        KeepProject(manifest, before, change);
    } catch (...) {
        try {
            Clear(number);
        } catch (const std::exception&) {
            // The next call clears it.
        }
        throw;
    }
    std::string name = std::string(HistoryFolder) + '/' + NumberName(number) + '/' + std::string(EntryFile);
    return {number, std::move(name), WriteManifest(manifest)};
}

void History::KeepProject(Manifest& manifest, const Manifest& before, const Change& change)
{
    m_disk.MakeFolder(m_folder);
    KeptFolder folder(m_disk, m_project, FolderOf(manifest.entry.number), before);
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
    Folders folders = Look();
    if (folders.entries.empty())
        return;
    std::uint64_t bytes = BytesIn(folders);
    std::erase(folders.before, Base);
    if (!folders.before.empty()) {
        const int oldest = folders.entries.begin()->first;
        bytes -= std::min(bytes, Release(folders.before, oldest, Read(oldest)));
    }
    while (folders.entries.size() > 1 && (folders.entries.size() > m_limits.entries || bytes > m_limits.bytes)) {
        const auto [oldest, size] = *folders.entries.begin();
        folders.entries.erase(folders.entries.begin());
        const int next = folders.entries.begin()->first;
        const Manifest needed = Read(next);
        m_disk.Remove(EntryOf(oldest));
        bytes -= std::min(bytes, size + Release({oldest}, next, needed));
    }
}

// Empties folders below the oldest entry. What this entry needs of them goes to the base, which then holds nothing
// else. Returns how many bytes less there are.
std::uint64_t History::Release(const std::vector<int>& numbers, int next, const Manifest& needed)
{
    std::uint64_t freed = 0;
    const DocumentFiles nearer = DocumentFilesIn(m_disk, FolderOf(next));
    const auto isNeeded = [&](const std::string& name) {
        return needed.project.contains(name) && !nearer.contains(name);
    };
    const auto remove = [&](int number, const std::string& name, const KZFileEntry& file) {
        m_disk.Remove(FileOf(FolderOf(number), name));
        freed += file.size;
    };
    DocumentFiles base = DocumentFilesIn(m_disk, FolderOf(Base));
    std::erase_if(base, [&](const auto& document) {
        const bool goes = !isNeeded(document.first);
        if (goes)
            remove(Base, document.first, document.second);
        return goes;
    });
    m_disk.MakeFolder(FolderOf(Base));
    m_disk.MakeFolder(FolderOf(Base) / DeviceFolder);
    for (const int number : numbers) {
        for (const auto& [name, file] : DocumentFilesIn(m_disk, FolderOf(number))) {
            if (!isNeeded(name)) {
                remove(number, name, file);
                continue;
            }
            m_disk.Move(FileOf(FolderOf(number), name), FileOf(FolderOf(Base), name));
            KZFileEntry& left = base[name];
            freed += left.size;
            left = file;
        }
        RemoveIfEmpty(FolderOf(number));
    }
    RemoveIfEmpty(FolderOf(Base));
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
    const Folders folders = Look();
    if (folders.entries.empty())
        throw Refusal(IDS_PLANT_HISTORY_EMPTY, {Shown(m_folder)});
    if (!folders.entries.contains(number))
        throw Refusal(IDS_PLANT_HISTORY_NO_ENTRY,
                      {std::to_wstring(number), std::to_wstring(folders.entries.begin()->first),
                       std::to_wstring(folders.entries.rbegin()->first)});
    const Manifest manifest = Read(number);

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
    AddKept(change, std::move(wanted), manifest, folders);
    return change;
}

void History::AddKept(Change& change, std::vector<std::string> wanted, const Manifest& manifest, const Folders& folders)
{
    std::vector<int> numbers = folders.before;
    for (const auto& [number, size] : folders.entries) {
        if (number <= manifest.entry.number)
            numbers.push_back(number);
    }
    for (; !numbers.empty() && !wanted.empty(); numbers.pop_back()) {
        const Path folder = FolderOf(numbers.back());
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
        throw Refusal(IDS_PLANT_HISTORY_CHANGED, {Shown(FileOf(FolderOf(manifest.entry.number), wanted.front()))});
}

}  // namespace plant
