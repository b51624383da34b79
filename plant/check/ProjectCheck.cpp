#include "ProjectCheck.h"

#include <unordered_map>
#include <unordered_set>

#include "KZUtf8.h"
#include "project/DocumentFiles.h"
#include "project/DocumentName.h"

namespace plant {

namespace {

const std::string Main(MainDocument);

class Checking {
public:
    explicit Checking(const StoredProject& project) : m_project(project), m_documents(project.Documents()) {}

    Findings All();
    Findings Of(std::span<const std::wstring> devices);

private:
    bool ReadMain();
    void CheckReadable();
    const XmlDocument::XmlNode* Read(const std::string& name);

    const StoredProject& m_project;
    DocumentFiles m_documents;
    XmlDocument m_main{L"configuration"};
    XmlDocument m_document{L"device"};  // of the device that is looked at
    DeviceCheck m_check{m_main, [this](const std::string& name) { return Read(name); }};
    DeviceList m_devices;
    std::vector<DeviceFault> m_faults;
    Findings m_findings;
};

// Without it nothing is known of the devices.
bool Checking::ReadMain()
{
    try {
        m_project.ReadMain(m_main);
    } catch (const Refusal& refusal) {
        m_findings.push_back({"", Main, refusal.What()});
        return false;
    }
    m_devices = ReadDevices(m_main, Shown(FileOf(m_project.Folder(), MainDocument)), m_faults);
    return true;
}

const XmlDocument::XmlNode* Checking::Read(const std::string& name)
{
    if (!m_documents.contains(name))
        throw Refusal(IDS_PLANT_CHECK_NO_DOCUMENT, {Shown(FileOf(m_project.Folder(), name))});
    return m_project.ReadDevice(name, m_document) ? m_document.Root() : nullptr;
}

Findings Checking::All()
{
    if (!ReadMain()) {
        CheckReadable();
        return std::move(m_findings);
    }
    for (DeviceFault& fault : m_faults)
        m_findings.push_back({ToUtf8(fault.device), Main, std::move(fault.reason)});
    for (const KZDeviceIdentity& device : m_devices)
        m_check.Check(device, m_findings);
    for (const zep::SetupList& setups : ListsOfSetups)
        CheckSetups(m_main, setups, m_devices, m_findings);
    for (const KZDeviceIdentity& device : m_devices)
        TakeOutOwned(m_documents, device);
    ReportStrays(m_documents, m_findings);
    return std::move(m_findings);
}

Findings Checking::Of(std::span<const std::wstring> devices)
{
    if (ReadMain())
        for (const std::wstring& device : devices)
            m_check.Check(m_devices[DeviceByNameOrId(m_devices, device, m_project.Folder() / MainDocument)],
                          m_findings);
    return std::move(m_findings);
}

void Checking::CheckReadable()
{
    for (const auto& [name, file] : m_documents)
        try {
            if (name != Main)
                Read(name);
        } catch (const Refusal& refusal) {
            m_findings.push_back({"", name, refusal.What()});
        }
}

}  // namespace

Findings CheckProject(const StoredProject& project, std::span<const std::wstring> devices)
{
    Checking checking(project);
    return devices.empty() ? checking.All() : checking.Of(devices);
}

void CheckSetups(const XmlDocument& main, const zep::SetupList& setups, const DeviceList& devices, Findings& findings)
{
    std::unordered_map<std::wstring_view, const KZDeviceIdentity*> known;
    for (const KZDeviceIdentity& device : devices)
        known.emplace(device.driverId.View(), &device);
    std::unordered_set<std::wstring_view> seen;
    const XmlDocument::XmlNode* const list = main.Node(setups.list);
    for (const auto* setup = list ? list->FirstChild(setups.element) : nullptr; setup;
         setup = setup->NextSibling(setups.element)) {
        const wchar_t* const driverId = setup->Value(zep::DriverIdName, L"");
        const auto device = known.find(driverId);
        const bool isFirst = seen.insert(driverId).second;
        const std::string name = device == known.end() ? "" : ToUtf8(device->second->name.View());
        if (device == known.end())
            findings.push_back({name, Main, {IDS_PLANT_CHECK_STRAY_SETUP, {setups.element, driverId}}});
        else if (!isFirst)
            findings.push_back({name, Main, {IDS_PLANT_CHECK_DOUBLE_SETUP, {setups.element, driverId}}});
    }
}

void TakeOutOwned(DocumentFiles& documents, const KZDeviceIdentity& device)
{
    documents.erase(DeviceDocumentName(device.driverId));
}

void ReportStrays(const DocumentFiles& left, Findings& findings)
{
    for (const auto& [name, file] : left)
        if (name != Main)
            findings.push_back({"", name, {IDS_PLANT_CHECK_STRAY_DOCUMENT, {}}});
}

}  // namespace plant
