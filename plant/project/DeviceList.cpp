#include "DeviceList.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cwchar>
#include <cwctype>

#include "GroupMask.h"
#include "KZUtf8.h"
#include "text/Refusal.h"

namespace plant {

namespace {

class DeviceReader {
public:
    explicit DeviceReader(std::wstring file) : m_file(std::move(file)) {}

    KZDeviceIdentity Read(const XmlDocument::XmlNode& element);

private:
    [[noreturn]] void Fail(unsigned textId, const wchar_t* value) const;
    std::wstring Label() const;
    const wchar_t* Required(const XmlDocument::XmlNode& element, const wchar_t* valueName) const;
    int Number(const XmlDocument::XmlNode& element) const;
    KZVariableGroups Groups(const XmlDocument::XmlNode& element) const;

    std::wstring m_file;
    int m_position = 0;
    const XmlDocument::XmlNode* m_device = nullptr;  // that is being read
};

bool HasControlCharacter(std::wstring_view text)
{
    return std::any_of(text.begin(), text.end(), [](wchar_t c) { return c < L' '; });
}

void DeviceReader::Fail(unsigned textId, const wchar_t* value) const
{
    throw Refusal(textId, {m_file, Label(), value});
}

// What errors call the device.
std::wstring DeviceReader::Label() const
{
    for (const wchar_t* valueName : {L"name", L"driverId"}) {
        if (const wchar_t* value = m_device->Value(valueName, L""); *value)
            return value;
    }
    return L"#" + std::to_wstring(m_position);
}

const wchar_t* DeviceReader::Required(const XmlDocument::XmlNode& element, const wchar_t* valueName) const
{
    const wchar_t* const value = element.Value(valueName, L"");
    if (!*value)
        Fail(IDS_PLANT_DEVICE_VALUE_MISSING, valueName);
    return value;
}

int DeviceReader::Number(const XmlDocument::XmlNode& element) const
{
    const wchar_t* text = element.Value(L"number", L"0");
    const std::string digits = ToUtf8(text);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || end != digits.data() + digits.size() || number < 0)
        Fail(IDS_PLANT_DEVICE_BAD_NUMBER, text);
    return number;
}

KZVariableGroups DeviceReader::Groups(const XmlDocument::XmlNode& element) const
{
    const wchar_t* text = element.Value(L"groups", L"0x0");
    const auto groups = ParseGroupMask(text);
    if (!groups)
        Fail(IDS_PLANT_DEVICE_BAD_GROUPS, text);
    return *groups;
}

KZDeviceIdentity DeviceReader::Read(const XmlDocument::XmlNode& element)
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
    return identity;
}

// The driverId names the device's document, and file names differ by more than case.
wchar_t WithoutCase(wchar_t c) noexcept
{
    const bool isAscii = c <= L'~';  // nearly all of it is, and the library is slow to ask
    const bool isCapital = c >= L'A' && c <= L'Z';
    return isAscii ? static_cast<wchar_t>(isCapital ? c - L'A' + L'a' : c)
                   : static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c)));
}

wchar_t AsItIs(wchar_t c) noexcept
{
    return c;
}

using Text = KZBasicString KZDeviceIdentity::*;
using Fold = wchar_t (*)(wchar_t) noexcept;

struct Hashed {
    std::uint64_t hash;
    const KZDeviceIdentity* device;
};

Hashed HashText(const KZDeviceIdentity& device, Text text, Fold fold) noexcept
{
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const wchar_t c : (device.*text).View())
        hash = (hash ^ static_cast<std::uint64_t>(fold(c))) * 0x100000001B3;
    return {hash, &device};
}

// By the hash, which tells nearly all texts apart, then by the text.
int Compare(const Hashed& left, const Hashed& right, Text text, Fold fold) noexcept
{
    if (left.hash != right.hash)
        return left.hash < right.hash ? -1 : 1;
    const wchar_t* l = (left.device->*text).c_str();
    const wchar_t* r = (right.device->*text).c_str();
    for (; *l && fold(*l) == fold(*r); ++l)
        ++r;
    return fold(*l) - fold(*r);
}

// The first device whose text is that of an earlier one; null when each has its own. Sorting hashes takes a fraction of
// the time of a table with very many texts.
const KZDeviceIdentity* FirstDouble(const DeviceList& devices, Text text, Fold fold)
{
    std::vector<Hashed> sorted;
    sorted.reserve(devices.size());
    for (const KZDeviceIdentity& device : devices)
        sorted.push_back(HashText(device, text, fold));
    std::sort(sorted.begin(), sorted.end(), [&](const Hashed& left, const Hashed& right) {
        const int order = Compare(left, right, text, fold);
        return order != 0 ? order < 0 : left.device < right.device;
    });
    const KZDeviceIdentity* first = nullptr;
    for (std::size_t at = 1; at < sorted.size(); ++at) {
        const KZDeviceIdentity* device = sorted[at].device;
        if (Compare(sorted[at - 1], sorted[at], text, fold) == 0 && (!first || device < first))
            first = device;
    }
    return first;
}

}  // namespace

DeviceList ReadDevices(const XmlDocument& document, const std::wstring& file)
{
    std::vector<const XmlDocument::XmlNode*> elements;
    const XmlDocument::XmlNode* list = document.Node(L"devices");
    for (const auto* element = list ? list->FirstChild(L"device") : nullptr; element;
         element = element->NextSibling(L"device"))
        elements.push_back(element);
    DeviceList devices;
    devices.reserve(elements.size());
    DeviceReader reader(file);
    for (const auto* element : elements)
        devices.push_back(reader.Read(*element));
    if (const KZDeviceIdentity* device = FirstDouble(devices, &KZDeviceIdentity::driverId, WithoutCase))
        throw Refusal(IDS_PLANT_DEVICE_DOUBLE_DRIVER_ID, {file, device->name.c_str(), device->driverId.c_str()});
    if (const KZDeviceIdentity* device = FirstDouble(devices, &KZDeviceIdentity::name, AsItIs))
        throw Refusal(IDS_PLANT_DEVICE_DOUBLE_NAME, {file, device->name.c_str(), device->name.c_str()});
    return devices;
}

}  // namespace plant
