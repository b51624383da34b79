#include "Export.h"

#include <vector>

#include "CsvText.h"
#include "FieldColumns.h"
#include "KZUtf8.h"

namespace plant {

std::string ExportTable(const DeviceList& devices, DeviceReader& reader, std::span<const std::string> keys)
{
    std::vector<std::string> row{std::string(DeviceColumn)};
    row.insert(row.end(), keys.begin(), keys.end());
    std::string text;
    AppendCsvRow(text, row);
    FieldColumns columns;
    for (const KZDeviceIdentity& device : devices) {
        const FieldTable* const table = FieldsOfType(device.typeName.View());
        if (!table)
            continue;
        const DeviceRecords& records = reader.Read(device);
        row.clear();
        row.push_back(ToUtf8(device.name.View()));
        for (const Field* field : columns.Of(*table, keys))
            row.push_back(field ? records.Value(*field) : std::string());
        AppendCsvRow(text, row);
    }
    return text;
}

}  // namespace plant
