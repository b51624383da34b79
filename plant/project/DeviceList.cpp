#include "DeviceList.h"

#include <algorithm>
#include <charconv>
#include <cwchar>
#include <cwctype>
#include <optional>
#include <unordered_set>

#include "DocumentName.h"
#include "GroupMask.h"
#include "KZUtf8.h"

namespace plant {

namespace {

class ElementReader {
public:
    ElementReader(std::wstring file, std::vector<DeviceFault>& faults) : m_file(std::move(file)), m_faults(faults) {}

    // Nothing for a device without a driverId of its own.
    std::optional<KZDeviceIdentity> Read(const XmlDocument::XmlNode& element);

private:
    void Fail(unsigned textId, const wchar_t* value) const;
    std::wstring Label() const;
    const wchar_t* Required(const XmlDocument::XmlNode& element, const wchar_t* valueName) const;
    bool IsIdentifier(const wchar_t* driverId);
    void CheckName(const wchar_t* name);
    int Number(const XmlDocument::XmlNode& element) const;
    KZVariableGroups Groups(const XmlDocument::XmlNode& element) const;

    std::wstring m_file;
    std::vector<DeviceFault>& m_faults;
    int m_position = 0;
    const XmlDocument::XmlNode* m_device = nullptr;  // that is being read
    std::unordered_set<std::wstring> m_driverIds;
    std::unordered_set<std::wstring_view> m_names;
};

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

bool ElementReader::IsIdentifier(const wchar_t* driverId)
{
    if (!*driverId)
        return false;
    // In a query path "?" ends the text that is looked for.
    if (HasControlCharacter(driverId) || std::wcschr(driverId, L'?'))
        Fail(IDS_PLANT_DEVICE_BAD_DRIVER_ID, driverId);
    const bool isOwn = m_driverIds.insert(FoldCase(driverId)).second;
    if (!isOwn)
        Fail(IDS_PLANT_DEVICE_DOUBLE_DRIVER_ID, driverId);
    return isOwn;
}

void ElementReader::CheckName(const wchar_t* name)
{
    if (HasControlCharacter(name))
        Fail(IDS_PLANT_DEVICE_BAD_NAME, L"name");
    if (*name && !m_names.insert(name).second)
        Fail(IDS_PLANT_DEVICE_DOUBLE_NAME, name);
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
    const bool isIdentified = IsIdentifier(driverId);
    CheckName(name);

    KZDeviceIdentity identity;
    identity.driverId = driverId;
    identity.name = name;
    identity.number = Number(element);
    identity.typeName = element.Value(L"type", L"");
    identity.description = element.Value(L"description", L"");
    identity.groups = Groups(element);
    return isIdentified ? std::optional(std::move(identity)) : std::nullopt;
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
    const XmlDocument::XmlNode* list = document.Node(L"devices");
    for (const auto* element = list ? list->FirstChild(L"device") : nullptr; element;
         element = element->NextSibling(L"device"))
        if (auto device = reader.Read(*element))
            devices.push_back(std::move(*device));
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
