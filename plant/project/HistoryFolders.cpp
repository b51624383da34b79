#include "HistoryFolders.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

#include "DocumentFiles.h"
#include "Sealed.h"
#include "text/Refusal.h"

namespace plant {

namespace {

using Kind = KZFileEntry::Kind;

constexpr std::string_view HistoryName = "history";
constexpr std::string_view EntryFile = "entry";

std::string NumberName(int number)
{
    std::array<char, 16> text;
    return {text.data(), static_cast<std::size_t>(std::snprintf(text.data(), text.size(), "%06d", number))};
}

std::optional<int> NumberOf(std::string_view name)
{
    int number = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
    const bool isOurs =
        error == std::errc{} && number >= 0 && number <= HistoryFolders::LastNumber && NumberName(number) == name;
    return isOurs ? std::optional(number) : std::nullopt;
}

}  // namespace

HistoryFolders::HistoryFolders(Disk& disk, const Path& project) : m_disk(disk), m_folder(project / HistoryName) {}

std::string HistoryFolders::NameOfEntry(int number)
{
    return std::string(HistoryName) + '/' + NumberName(number) + '/' + std::string(EntryFile);
}

bool HistoryFolders::IsNameOfEntry(std::string_view name)
{
    const auto folder = TakeUpTo(name, '/');
    const auto number = TakeUpTo(name, '/');
    const std::optional<int> entry = number ? NumberOf(*number) : std::nullopt;
    return folder == HistoryName && entry.value_or(Base) != Base && name == EntryFile;
}

Path HistoryFolders::Of(int number) const
{
    return m_folder / NumberName(number);
}

Path HistoryFolders::EntryOf(int number) const
{
    return Of(number) / EntryFile;
}

std::vector<int> HistoryFolders::Numbers()
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

HistoryFolders::Found HistoryFolders::Look()
{
    Found found{Numbers(), {}};
    for (const int number : found.numbers) {
        const auto entry = number == Base ? std::nullopt : m_disk.Find(EntryOf(number));
        if (entry)
            found.entries.emplace(number, entry->size);
    }
    return found;
}

Manifest HistoryFolders::Read(int number)
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

void HistoryFolders::Clear(int number)
{
    const Path folder = Of(number);
    for (const auto& [name, file] : DocumentFilesIn(m_disk, folder))
        m_disk.Remove(FileOf(folder, name));
    RemoveIfEmpty(number);
}

void HistoryFolders::RemoveIfEmpty(int number)
{
    const Path folder = Of(number);
    for (const Path& path : {folder / DeviceFolder, folder}) {
        const auto found = m_disk.Find(path);
        if (found && found->kind == Kind::Folder && m_disk.List(path).empty())
            m_disk.Remove(path);
    }
}

}  // namespace plant
