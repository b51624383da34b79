#include "FieldQuery.h"

#include <algorithm>

#include "KZUtf8.h"

namespace plant {

namespace {

template <typename Value>
void AddOnce(std::vector<Value>& values, Value value)
{
    if (std::find(values.begin(), values.end(), value) == values.end())
        values.push_back(value);
}

std::vector<std::size_t> DevicesWithTable(const DeviceList& devices)
{
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < devices.size(); ++place) {
        if (FieldsOfType(devices[place].typeName.View()))
            places.push_back(place);
    }
    return places;
}

}  // namespace

std::vector<std::size_t> DevicesNamed(const Project& project, const std::vector<std::wstring>& names)
{
    if (names.empty())
        return DevicesWithTable(project.Devices());
    std::vector<std::size_t> places;
    for (const std::wstring& name : names) {
        const std::size_t place = project.DeviceByNameOrId(name);
        const KZDeviceIdentity& device = project.Devices()[place];
        if (!FieldsOfType(device.typeName.View()))
            throw Refusal(IDS_PLANT_DEVICE_NO_FIELDS, {device.name.c_str(), device.typeName.c_str()});
        AddOnce(places, place);
    }
    return places;
}

const Field& FieldNamed(const FieldTable& table, const std::string& key)
{
    const Field* const field = FindField(table, key);
    if (!field)
        throw Refusal(IDS_PLANT_NO_FIELD, {FromUtf8(key)});
    return *field;
}

std::vector<const Field*> FieldsNamed(const FieldTable& table, const std::vector<std::string>& keys)
{
    std::vector<const Field*> fields;
    for (const std::string& key : keys)
        AddOnce(fields, &FieldNamed(table, key));
    if (keys.empty()) {
        for (const Field& field : table)
            fields.push_back(&field);
    }
    return fields;
}

}  // namespace plant
