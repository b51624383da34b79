#include "SavedMain.h"

#include "project/StoredProject.h"

namespace plant {

SavedMain::SavedMain(const Project& project)
{
    const Path file = project.Folder() / MainDocument;
    std::optional<std::string> bytes = project.SavedContent(std::string(MainDocument));
    if (!bytes)
        throw Refusal(IDS_PLANT_NO_MAIN, {Shown(file)});
    m_bytes = std::move(*bytes);
    ParseDocument(m_main, m_bytes, file);
    std::vector<DeviceFault> faults;
    m_devices = ReadDevices(m_main, Shown(file), faults);
    for (const KZDeviceIdentity& device : m_devices)
        m_byId.emplace(device.driverId.View(), &device);
}

const KZDeviceIdentity* SavedMain::Find(const KZBasicString& driverId) const
{
    const auto found = m_byId.find(driverId.View());
    return found == m_byId.end() ? nullptr : found->second;
}

}  // namespace plant
