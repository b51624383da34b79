#include "ProjectDifference.h"

#include <cwchar>
#include <string_view>
#include <unordered_map>

#include "DeviceReader.h"
#include "KZUtf8.h"

namespace plant {

namespace {

using Kind = FieldDifference::Kind;

bool HasTable(const KZDeviceIdentity& device)
{
    return FieldsOfType(device.typeName.View()) != nullptr;
}

std::unordered_map<std::wstring_view, const KZDeviceIdentity*> ByName(const DeviceList& devices)
{
    std::unordered_map<std::wstring_view, const KZDeviceIdentity*> byName;
    for (const KZDeviceIdentity& device : devices)
        byName.emplace(device.name.View(), &device);
    return byName;
}

// Most texts are the same, and need not be made values of.
void Compare(std::vector<FieldDifference>& differences, const std::string& name, const DeviceRecords& here,
             const DeviceRecords& there)
{
    for (const Field& field : here.Table()) {
        if (std::wcscmp(here.Text(field), there.Text(field)) == 0)
            continue;
        std::string valueHere = here.Value(field);
        std::string valueThere = there.Value(field);
        if (valueHere != valueThere)
            differences.push_back({name, Kind::Value, &field, std::move(valueHere), std::move(valueThere)});
    }
}

void AddMissing(std::vector<FieldDifference>& differences, const KZDeviceIdentity& device, Kind kind)
{
    if (HasTable(device))
        differences.push_back({ToUtf8(device.name.View()), kind, nullptr, {}, {}});
}

}  // namespace

std::vector<FieldDifference> Differences(const ReadProject& here, const ReadProject& there)
{
    std::vector<FieldDifference> differences;
    DeviceReader readHere(here.main, here.files);
    DeviceReader readThere(there.main, there.files);
    auto others = ByName(there.devices);
    for (const KZDeviceIdentity& device : here.devices) {
        const auto found = others.extract(device.name.View());
        if (!found) {
            AddMissing(differences, device, Kind::OnlyHere);
            continue;
        }
        const KZDeviceIdentity& other = *found.mapped();
        const std::string name = ToUtf8(device.name.View());
        if (device.typeName != other.typeName) {
            if (HasTable(device) || HasTable(other))
                differences.push_back(
                    {name, Kind::Type, nullptr, ToUtf8(device.typeName.View()), ToUtf8(other.typeName.View())});
        } else if (HasTable(device)) {
            const DeviceRecords& valuesHere = readHere.Read(device);
            Compare(differences, name, valuesHere, readThere.Read(other, &readHere));
        }
    }
    for (const KZDeviceIdentity& device : there.devices) {
        if (others.contains(device.name.View()))
            AddMissing(differences, device, Kind::OnlyThere);
    }
    return differences;
}

}  // namespace plant
