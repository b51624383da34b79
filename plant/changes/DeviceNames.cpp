// How devices may be called, and names and ids for new ones.
#include <algorithm>
#include <set>
#include <unordered_map>

#include "DeviceEdit.h"
#include "DeviceElements.h"
#include "KZDocumentFileName.h"
#include "KZMainCfg.h"
#include "KZStringIds.h"
#include "KZUtf8.h"
#include "project/DeviceFilter.h"
#include "project/DocumentName.h"
#include "project/GroupMask.h"

namespace plant {

namespace {

// Whether a document gives back what it is given.
bool IsWritable(const std::wstring& text)
{
    return std::none_of(text.begin(), text.end(), [](wchar_t c) { return c < L' ' || c == 0xFFFE || c == 0xFFFF; }) &&
           FromUtf8(ToUtf8(text)) == text;
}

bool IsName(const std::wstring& text)
{
    constexpr std::wstring_view blanks = L" \u00A0";
    return IsWritable(text) && blanks.find(text.front()) == std::wstring_view::npos &&
           blanks.find(text.back()) == std::wstring_view::npos;
}

// Names and numbers that are taken.
class TakenNames {
public:
    // By all devices but one.
    explicit TakenNames(const DeviceList& devices, std::optional<std::size_t> except = {})
    {
        for (std::size_t place = 0; place < devices.size(); ++place)
            if (place != except)
                Take(std::wstring(devices[place].name.View()), devices[place].number);
    }
    void Take(const std::wstring& name, int number)
    {
        m_names.insert(name);
        m_numbers.try_emplace(number, name);
    }
    [[nodiscard]] bool HasName(const std::wstring& name) const { return m_names.contains(name); }
    // Whose number it is; null when it is free. Any number of devices may have none.
    [[nodiscard]] const std::wstring* OwnerOf(int number) const
    {
        const auto found = m_numbers.find(number);
        return number == 0 || found == m_numbers.end() ? nullptr : &found->second;
    }

private:
    std::set<std::wstring> m_names;
    std::unordered_map<int, std::wstring> m_numbers;
};

class Judge {
public:
    Judge(TakenNames taken, EntryRefusals& refusals) : m_taken(std::move(taken)), m_refusals(refusals) {}

    // What the device is called already is accepted.
    void JudgeNaming(std::size_t row, const DeviceNaming& naming, const DeviceNaming& present = {});
    void Refuse(std::size_t row, DeviceEntry entry, Message reason) const
    {
        m_refusals.push_back({row, entry, std::move(reason)});
    }

private:
    [[nodiscard]] std::optional<Message> NameFault(const std::wstring& name) const;
    [[nodiscard]] std::optional<Message> NumberFault(const std::wstring& number) const;

    TakenNames m_taken;
    EntryRefusals& m_refusals;
};

std::optional<Message> Judge::NameFault(const std::wstring& name) const
{
    if (name.empty())
        return Message{KZS_FIELD_EMPTY, {}};
    if (!IsName(name))
        return Message{IDS_PLANT_NAME_UNFIT, {}};
    return m_taken.HasName(name) ? std::optional(Message{IDS_PLANT_NAME_USED, {name}}) : std::nullopt;
}

std::optional<Message> Judge::NumberFault(const std::wstring& number) const
{
    if (number.empty())
        return std::nullopt;
    const auto parsed = ParseCount(number);
    if (!parsed)
        return Message{IDS_PLANT_NUMBER_UNFIT, {}};
    const std::wstring* const owner = m_taken.OwnerOf(*parsed);
    return owner ? std::optional(Message{IDS_PLANT_NUMBER_USED, {*owner, number}}) : std::nullopt;
}

void Judge::JudgeNaming(std::size_t row, const DeviceNaming& naming, const DeviceNaming& present)
{
    if (naming.name.empty() || naming.name != present.name)
        if (auto fault = NameFault(naming.name))
            Refuse(row, DeviceEntry::Name, std::move(*fault));
    if (naming.number != present.number)
        if (auto fault = NumberFault(naming.number))
            Refuse(row, DeviceEntry::Number, std::move(*fault));
    if (naming.description != present.description && !IsWritable(naming.description))
        Refuse(row, DeviceEntry::Description, {IDS_PLANT_TEXT_UNFIT, {}});
    m_taken.Take(naming.name, ParseCount(naming.number).value_or(0));
}

std::wstring NameOf(const std::wstring& pattern, const std::wstring& number, bool isAlone)
{
    const std::size_t first = pattern.find(L'#');
    if (first == std::wstring::npos)
        return isAlone ? pattern : pattern + number;
    const std::size_t end = std::min(pattern.find_first_not_of(L'#', first), pattern.size());
    const std::size_t width = end - first;
    const std::wstring zeros(width > number.size() ? width - number.size() : 0, L'0');
    return pattern.substr(0, first) + zeros + number + pattern.substr(end);
}

// The lowest number from which on so many numbers, and the names with them, are free.
int FirstFree(const Project& project, const std::wstring& pattern, std::size_t count)
{
    const TakenNames taken(project.Devices());
    int number = 1;
    for (std::size_t run = 0; run < count; ++number) {
        const bool isFree =
            !taken.OwnerOf(number) && !taken.HasName(NameOf(pattern, std::to_wstring(number), count == 1));
        const bool canBeFree = count > 1 || pattern.find(L'#') != std::wstring::npos || !taken.HasName(pattern);
        run = isFree || !canBeFree ? run + 1 : 0;
    }
    return number - static_cast<int>(count);
}

// Small letters, digits and single "-", which every file system takes.
std::wstring PlainId(std::wstring_view name)
{
    constexpr std::size_t longest = 40;
    std::wstring id;
    for (const wchar_t c : Folded(name)) {
        const bool isPlain = (c >= L'a' && c <= L'z') || (c >= L'0' && c <= L'9');
        if (id.size() < longest && (isPlain || (!id.empty() && id.back() != L'-')))
            id += isPlain ? c : L'-';
    }
    if (id.ends_with(L'-'))
        id.pop_back();
    return id.empty() || KZIsReservedFileName(id) ? L"device" : id;
}

}  // namespace

DeviceNaming NamingOf(const KZDeviceIdentity& device)
{
    return {device.name.c_str(), device.number == 0 ? std::wstring() : std::to_wstring(device.number),
            device.description.c_str()};
}

EntryRefusals JudgeAdd(const Project& project, const NewDevice& device)
{
    EntryRefusals refusals;
    Judge judge(TakenNames(project.Devices()), refusals);
    judge.JudgeNaming(0, device);
    if (device.typeName.empty())
        judge.Refuse(0, DeviceEntry::Type, {KZS_FIELD_EMPTY, {}});
    if (!ParseGroupMask(device.groups))
        judge.Refuse(0, DeviceEntry::Groups, {IDS_PLANT_GROUPS_UNFIT, {}});
    if (device.transformerRatio.empty())
        judge.Refuse(0, DeviceEntry::TransformerRatio, {KZS_FIELD_EMPTY, {}});
    else if (ParseCount(device.transformerRatio).value_or(0) == 0)
        judge.Refuse(0, DeviceEntry::TransformerRatio, {IDS_PLANT_RATIO_UNFIT, {}});
    return refusals;
}

EntryRefusals JudgeDuplicates(const Project& project, std::span<const DeviceNaming> names)
{
    EntryRefusals refusals;
    Judge judge(TakenNames(project.Devices()), refusals);
    for (std::size_t row = 0; row < names.size(); ++row)
        judge.JudgeNaming(row, names[row]);
    return refusals;
}

EntryRefusals JudgeRename(const Project& project, std::size_t device, const DeviceNaming& naming)
{
    EntryRefusals refusals;
    Judge judge(TakenNames(project.Devices(), device), refusals);
    judge.JudgeNaming(0, naming, NamingOf(project.Devices()[device]));
    return refusals;
}

std::vector<DeviceNaming> NamesFromPattern(const Project& project, const std::wstring& pattern,
                                           const std::wstring& first, std::size_t count,
                                           const std::wstring& description)
{
    const auto given = first.empty() ? std::optional(FirstFree(project, pattern, count)) : ParseCount(first);
    std::vector<DeviceNaming> names;
    for (std::size_t row = 0; row < count; ++row) {
        const std::wstring number = given ? std::to_wstring(*given + static_cast<std::int64_t>(row)) : first;
        names.push_back({NameOf(pattern, number, count == 1), number, description});
    }
    return names;
}

// Ids that differ in capitals only would name the same file on Windows.
bool FreeDriverIds::TakeDocument(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return m_documents.insert(std::move(name)).second;
}

FreeDriverIds::FreeDriverIds(Project& project)
{
    const auto take = [this](std::wstring_view driverId) { TakeDocument(DeviceDocumentName(KZBasicString(driverId))); };
    for (const KZDeviceIdentity& device : project.Devices())
        take(device.driverId.View());
    for (const zep::SetupList& setups : AllOfDevice) {
        const XmlDocument::XmlNode* const list = KZMainCfg::Get()->Node(setups.list);
        for (const auto* setup = list ? list->FirstChild(setups.element) : nullptr; setup;
             setup = setup->NextSibling(setups.element))
            take(setup->Value(zep::DriverIdName, L""));
    }
    for (const auto& [name, file] : project.FilesOnDisk())
        TakeDocument(name);
    for (const auto& [name, bytes] : project.Pending())
        TakeDocument(name);
}

KZBasicString FreeDriverIds::Take(std::wstring_view name)
{
    const std::wstring plain = PlainId(name);
    std::wstring id = plain;
    for (int number = 2; !TakeDocument(DeviceDocumentName(KZBasicString(id))); ++number)
        id = plain + L"-" + std::to_wstring(number);
    return id;
}

}  // namespace plant
