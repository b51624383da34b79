#include "DeviceList.h"

#include <algorithm>
#include <charconv>
#include <cwchar>
#include <cwctype>
#include <optional>

#include "DeviceSetups.h"
#include "DocumentName.h"
#include "GroupMask.h"
#include "KZUtf8.h"

namespace plant {

namespace {

class ElementReader {
public:
    ElementReader(std::wstring file, std::vector<DeviceFault>& faults) : m_file(std::move(file)), m_faults(faults) {}

    // Nothing for a device without a driverId.
    std::optional<KZDeviceIdentity> Read(const XmlDocument::XmlNode& element);

private:
    void Fail(unsigned textId, const wchar_t* value) const;
    std::wstring Label() const;
    const wchar_t* Required(const XmlDocument::XmlNode& element, const wchar_t* valueName) const;
    int Number(const XmlDocument::XmlNode& element) const;
    KZVariableGroups Groups(const XmlDocument::XmlNode& element) const;

    std::wstring m_file;
    std::vector<DeviceFault>& m_faults;
    int m_position = 0;
    const XmlDocument::XmlNode* m_device = nullptr;  // that is being read
};

bool HasControlCharacter(std::wstring_view text)
{
    return std::any_of(text.begin(), text.end(), [](wchar_t c) { return c < L' '; });
}

void ElementReader::Fail(unsigned textId, const wchar_t* value) const
{
    m_faults.push_back({Label(), {textId, {m_file, Label(), value}}});
}

// What errors call the device.
std::wstring ElementReader::Label() const
{
    for (const wchar_t* valueName : {L"name", L"driverId"}) {
        if (const wchar_t* value = m_device->Value(valueName, L""); *value)
            return value;
    }
    return L"#" + std::to_wstring(m_position);
}

const wchar_t* ElementReader::Required(const XmlDocument::XmlNode& element, const wchar_t* valueName) const
{
    const wchar_t* const value = element.Value(valueName, L"");
    if (!*value)
        Fail(IDS_PLANT_DEVICE_VALUE_MISSING, valueName);
    return value;
}

int ElementReader::Number(const XmlDocument::XmlNode& element) const
{
    const wchar_t* text = element.Value(L"number", L"0");
    const std::string digits = ToUtf8(text);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || end != digits.data() + digits.size() || number < 0)
        Fail(IDS_PLANT_DEVICE_BAD_NUMBER, text);
    return number;
}

KZVariableGroups ElementReader::Groups(const XmlDocument::XmlNode& element) const
{
    const wchar_t* text = element.Value(L"groups", L"0x0");
    const auto groups = ParseGroupMask(text);
    if (!groups)
        Fail(IDS_PLANT_DEVICE_BAD_GROUPS, text);
    return groups.value_or(KZVariableGroups{});
}

std::optional<KZDeviceIdentity> ElementReader::Read(const XmlDocument::XmlNode& element)
{
    ++m_position;
    m_device = &element;
    const wchar_t* const driverId = Required(element, L"driverId");
    const wchar_t* const name = Required(element, L"name");
    // In a query path "?" ends the text that is looked for.
    if (HasControlCharacter(driverId) || std::wcschr(driverId, L'?'))
        Fail(IDS_PLANT_DEVICE_BAD_DRIVER_ID, driverId);
    if (HasControlCharacter(name))
        Fail(IDS_PLANT_DEVICE_BAD_NAME, L"name");

    KZDeviceIdentity identity;
    identity.driverId = driverId;
    identity.name = name;
    identity.number = Number(element);
    identity.typeName = element.Value(L"type", L"");
    identity.description = element.Value(L"description", L"");
    identity.groups = Groups(element);
    return *driverId ? std::optional(std::move(identity)) : std::nullopt;
}

// The driverId names the device's document, and file names differ by more than case.
std::wstring FoldCase(std::wstring text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](wchar_t c) {
        const bool isAscii = c <= L'~';  // nearly all of it is, and the library is slow to ask
        const bool isCapital = c >= L'A' && c <= L'Z';
        return isAscii ? static_cast<wchar_t>(isCapital ? c - L'A' + L'a' : c)
                       : static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c)));
    });
    return text;
}

// The places of the texts that an earlier one is equal to, in order. Sorting hashes takes a fraction of the time that a
// table of very many texts does.
std::vector<std::size_t> Doubles(const std::vector<std::wstring_view>& texts)
{
    std::vector<std::pair<std::size_t, std::size_t>> sorted;  // hash and place
    sorted.reserve(texts.size());
    for (std::size_t place = 0; place < texts.size(); ++place)
        sorted.emplace_back(std::hash<std::wstring_view>{}(texts[place]), place);
    std::sort(sorted.begin(), sorted.end());
    std::vector<std::size_t> doubles;
    for (std::size_t at = 1; at < sorted.size(); ++at) {
        const auto& [hash, place] = sorted[at];
        bool isDouble = false;
        for (std::size_t before = at; !isDouble && before > 0 && sorted[before - 1].first == hash; --before)
            isDouble = texts[sorted[before - 1].second] == texts[place];
        if (isDouble)
            doubles.push_back(place);
    }
    std::sort(doubles.begin(), doubles.end());
    return doubles;
}

std::vector<std::size_t> DoubleNames(const DeviceList& devices)
{
    std::vector<std::wstring_view> names;
    names.reserve(devices.size());
    for (const KZDeviceIdentity& device : devices)
        names.push_back(device.name.View());
    // A name that is missing is a fault of its own.
    std::vector<std::size_t> doubles = Doubles(names);
    std::erase_if(doubles, [&](std::size_t place) { return names[place].empty(); });
    return doubles;
}

std::vector<std::size_t> DoubleDriverIds(const DeviceList& devices)
{
    std::vector<std::wstring> folded;
    folded.reserve(devices.size());
    for (const KZDeviceIdentity& device : devices)
        folded.push_back(FoldCase(std::wstring(device.driverId.View())));
    return Doubles({folded.begin(), folded.end()});
}

std::optional<std::size_t> Find(const DeviceList& devices, KZBasicString KZDeviceIdentity::*identity,
                                std::wstring_view text)
{
    const auto found = std::find_if(devices.begin(), devices.end(),
                                    [&](const KZDeviceIdentity& device) { return (device.*identity).View() == text; });
    return found == devices.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - devices.begin()));
}

}  // namespace

DeviceList ReadDevices(const XmlDocument& document, const std::wstring& file, std::vector<DeviceFault>& faults)
{
    DeviceList devices;
    ElementReader reader(file, faults);
    const XmlDocument::XmlNode* list = document.Node(DeviceElements.list);
    for (const auto* element = list ? list->FirstChild(DeviceElements.element) : nullptr; element;
         element = element->NextSibling(DeviceElements.element))
        if (auto device = reader.Read(*element))
            devices.push_back(std::move(*device));
    const auto fail = [&](std::size_t place, unsigned textId, const KZBasicString& text) {
        const wchar_t* const name = devices[place].name.c_str();
        faults.push_back({name, {textId, {file, name, text.c_str()}}});
    };
    for (const std::size_t place : DoubleNames(devices))
        fail(place, IDS_PLANT_DEVICE_DOUBLE_NAME, devices[place].name);
    std::vector<std::size_t> doubles = DoubleDriverIds(devices);
    for (const std::size_t place : doubles)
        fail(place, IDS_PLANT_DEVICE_DOUBLE_DRIVER_ID, devices[place].driverId);
    for (; !doubles.empty(); doubles.pop_back())
        devices.erase(devices.begin() + static_cast<std::ptrdiff_t>(doubles.back()));
    return devices;
}

DeviceList ReadDevices(const XmlDocument& document, const std::wstring& file)
{
    std::vector<DeviceFault> faults;
    DeviceList devices = ReadDevices(document, file, faults);
    if (!faults.empty())
        throw Refusal(std::move(faults.front().reason));
    return devices;
}

std::size_t DeviceByName(const DeviceList& devices, std::wstring_view name, const std::filesystem::path& file)
{
    if (const auto found = Find(devices, &KZDeviceIdentity::name, name))
        return *found;
    std::wstring known;
    for (const KZDeviceIdentity& device : devices)
        known.append(known.empty() ? L"" : L", ").append(device.name.View());
    throw Refusal(IDS_PLANT_NO_DEVICE, {std::wstring(name), Shown(file), known});
}

std::size_t DeviceByNameOrId(const DeviceList& devices, std::wstring_view text, const std::filesystem::path& file)
{
    const auto named = Find(devices, &KZDeviceIdentity::name, text);
    const auto found = named ? named : Find(devices, &KZDeviceIdentity::driverId, text);
    return found ? *found : DeviceByName(devices, text, file);
}

}  // namespace plant
