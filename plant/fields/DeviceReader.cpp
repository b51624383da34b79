#include "DeviceReader.h"

#include "project/DocumentName.h"

namespace plant {

const DeviceRecords& DeviceReader::Read(const KZDeviceIdentity& device, const DeviceReader* beside)
{
    const std::string name = DeviceDocumentName(device.driverId);
    m_root = nullptr;
    m_bytes = m_files.ReadDevice(name);
    if (beside && beside->m_bytes == m_bytes) {
        m_root = beside->m_root;
    } else if (m_bytes) {
        ParseDocument(m_document, *m_bytes, FileOf(m_files.Folder(), name));
        m_root = m_document.Root();
    }

    const FieldTable& table = *FieldsOfType(device.typeName.View());
    if (!m_records || &m_records->Table() != &table)
        m_records.emplace(table);
    m_records->Find(m_main, m_root, device.driverId);
    return *m_records;
}

}  // namespace plant
