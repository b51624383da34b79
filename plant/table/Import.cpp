#include "Import.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "CsvText.h"
#include "FieldColumns.h"
#include "KZUtf8.h"
#include "project/DocumentName.h"

namespace plant {

namespace {

class TableImport {
public:
    TableImport(Project& project, FieldEdit& edit, std::string_view text, const std::wstring& file)
        : m_project(project), m_edit(edit), m_reader(text, file)
    {
    }

    std::vector<Finding> Run();

private:
    void FindDevices();
    [[nodiscard]] bool IsField(std::string_view key) const;
    void ReadHeader();
    void ReadRow();
    void TakeValues(std::size_t device, const FieldTable& table);
    void Tell(std::size_t column, unsigned text);

    Project& m_project;
    FieldEdit& m_edit;
    CsvReader m_reader;
    std::unordered_map<std::string, std::size_t> m_devices;  // by name and driverId
    std::unordered_set<const FieldTable*> m_tables;          // of the devices
    std::unordered_set<std::size_t> m_seen;                  // devices
    std::vector<std::string> m_header;
    std::vector<bool> m_isField;  // by column
    std::optional<std::size_t> m_deviceColumn;
    FieldColumns m_columns;
    std::vector<Assignment> m_values;
    std::vector<Finding> m_findings;
};

void TableImport::Tell(std::size_t column, unsigned text)
{
    m_findings.push_back({{}, {}, m_reader.At(column, text, FromUtf8(m_reader.Values()[column]))});
}

std::vector<Finding> TableImport::Run()
{
    FindDevices();
    try {
        if (m_reader.Next())
            ReadHeader();
        while (m_deviceColumn && m_reader.Next())
            ReadRow();
    } catch (const Refusal& refusal) {
        m_findings.push_back({{}, {}, refusal.What()});
    }
    return std::move(m_findings);
}

void TableImport::FindDevices()
{
    const DeviceList& devices = m_project.Devices();
    for (std::size_t device = 0; device < devices.size(); ++device) {
        m_devices.emplace(ToUtf8(devices[device].name.View()), device);
        if (const FieldTable* const table = FieldsOfType(devices[device].typeName.View()))
            m_tables.insert(table);
    }
    // A name comes before a driverId that is the same.
    for (std::size_t device = 0; device < devices.size(); ++device)
        m_devices.emplace(ToUtf8(devices[device].driverId.View()), device);
}

bool TableImport::IsField(std::string_view key) const
{
    return std::any_of(m_tables.begin(), m_tables.end(),
                       [key](const FieldTable* table) { return FindField(*table, key) != nullptr; });
}

void TableImport::ReadHeader()
{
    m_header.assign(m_reader.Values().begin(), m_reader.Values().end());
    m_isField.assign(m_header.size(), false);
    std::unordered_set<std::string_view> names;
    for (std::size_t column = 0; column < m_header.size(); ++column) {
        const std::string& name = m_header[column];
        if (!names.insert(name).second)
            Tell(column, IDS_PLANT_TABLE_SAME_COLUMN);
        else if (name == DeviceColumn)
            m_deviceColumn = column;
        else if (IsField(name))
            m_isField[column] = true;
        else
            Tell(column, IDS_PLANT_TABLE_NO_FIELD);
    }
    if (!m_deviceColumn)
        Tell(0, IDS_PLANT_TABLE_NO_DEVICES);
}

void TableImport::ReadRow()
{
    const auto found = m_devices.find(m_reader.Values()[*m_deviceColumn]);
    if (found == m_devices.end())
        return Tell(*m_deviceColumn, IDS_PLANT_TABLE_NO_DEVICE);
    const std::size_t device = found->second;
    const FieldTable* const table = FieldsOfType(m_project.Devices()[device].typeName.View());
    if (!table)
        return Tell(*m_deviceColumn, IDS_PLANT_TABLE_NO_TYPE);
    if (!m_seen.insert(device).second)
        return Tell(*m_deviceColumn, IDS_PLANT_TABLE_SAME_DEVICE);
    TakeValues(device, *table);
}

void TableImport::TakeValues(std::size_t device, const FieldTable& table)
{
    const std::vector<const Field*>& fields = m_columns.Of(table, m_header);
    m_values.clear();
    for (std::size_t column = 0; column < m_header.size(); ++column) {
        const std::string& value = m_reader.Values()[column];
        if (!m_isField[column] || value.empty())
            continue;
        if (fields[column])
            m_values.push_back({fields[column], value});
        else
            m_findings.push_back({{}, {}, m_reader.At(column, IDS_PLANT_TABLE_NO_FIELD, FromUtf8(m_header[column]))});
    }
    try {
        m_edit.Add(device, m_values);
    } catch (const Refusal& refusal) {
        const KZDeviceIdentity& identity = m_project.Devices()[device];
        m_findings.push_back({ToUtf8(identity.name.View()), DeviceDocumentName(identity.driverId), refusal.What()});
    }
}

}  // namespace

std::vector<Finding> ImportTable(Project& project, FieldEdit& edit, std::string_view text, const std::wstring& file)
{
    return TableImport(project, edit, text, file).Run();
}

}  // namespace plant
