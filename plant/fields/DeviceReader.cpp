#include "DeviceReader.h"

#include "project/DocumentName.h"

namespace plant {

const DeviceRecords& DeviceReader::Read(const KZDeviceIdentity& device)
{
    const FieldTable& table = *FieldsOfType(device.typeName.View());
    if (!m_records || &m_records->Table() != &table)
        m_records.emplace(table);
    const bool isThere = m_files.ReadDevice(DeviceDocumentName(device.driverId), m_document);
    m_records->Find(m_main, isThere ? m_document.Root() : nullptr, device.driverId);
    return *m_records;
}

}  // namespace plant
