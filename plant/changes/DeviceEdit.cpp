#include "DeviceEdit.h"

#include "ChildOrNew.h"
#include "DeviceElements.h"
#include "InformationRecord.h"
#include "KZMainCfg.h"
#include "project/DocumentName.h"
#include "project/StoredProject.h"

namespace plant {

namespace {

using Node = XmlDocument::XmlNode;

struct Texts {
    KZBasicString driverId;
    const DeviceNaming& naming;
    KZBasicString typeName;
    KZBasicString groups;
};

void AppendDevice(const Texts& device)
{
    Node& element = zep::AppendSetup(*KZMainCfg::Get(), DeviceElements, device.driverId);
    element.SetValue(L"name", device.naming.name.c_str());
    if (const auto number = ParseCount(device.naming.number); number && *number > 0)
        element.SetValue(L"number", *number);
    element.SetValue(L"type", device.typeName.c_str());
    if (!device.naming.description.empty())
        element.SetValue(L"description", device.naming.description.c_str());
    element.SetValue(L"groups", device.groups.c_str());
}

// What a device is set to; the rest an instrument tells of itself.
bool IsCopied(const zep::InformationFieldInfo& info) noexcept
{
    return info.setting != nullptr;
}

std::string DocumentLike(const std::optional<std::string>& bytes, const Path& file)
{
    XmlDocument source(L"device");
    if (bytes && !bytes->empty())
        ParseDocument(source, *bytes, file);
    XmlDocument copy(L"device");
    const Node* const from = source.Node(zep::InformationElement);
    Node& to = zep::ChildOrNew(*copy.Root(), zep::InformationElement);
    for (const zep::InformationFieldInfo& info : zep::InformationFields)
        if (const wchar_t* const text = from && IsCopied(info) ? from->Value(info.name, nullptr) : nullptr)
            to.SetValue(info.name, text);
    return copy.Serialize();
}

void CopySetups(const KZBasicString& from, const KZBasicString& to)
{
    XmlDocument& main = *KZMainCfg::Get();
    for (const zep::SetupList& setups : {zep::UnitSetups, zep::ViewSetups})
        if (const Node* const setup = zep::FindSetup(main, setups, from)) {
            Node& copy = zep::AppendSetup(main, setups, to);
            CopyInto(copy, setup->Look());
            copy.SetValue(zep::DriverIdName, to.c_str());
        }
}

void RemoveFrom(const zep::SetupList& setups, const DriverIds& driverIds)
{
    Node* const list = KZMainCfg::Get()->Node(setups.list);
    Node* next = list ? list->FirstChild(setups.element) : nullptr;
    while (Node* const element = next) {
        next = element->NextSibling(setups.element);
        if (driverIds.contains(element->Value(zep::DriverIdName, L"")))
            list->RemoveChild(element);
    }
}

}  // namespace

KZBasicString AddDevice(Project& project, const NewDevice& device)
{
    KZBasicString driverId = FreeDriverIds(project).Take(device.name);
    XmlDocument document(L"device");
    zep::ChildOrNew(*document.Root(), zep::InformationElement)
        .SetValue(zep::InformationFields[static_cast<std::size_t>(zep::InformationField::TransformerRatio)].name,
                  device.transformerRatio.c_str());
    Change documents{{DeviceDocumentName(driverId), document.Serialize()}};
    AppendDevice({driverId, device, device.typeName, device.groups});
    project.ReadDevicesAnew();
    project.KeepUnsaved(std::move(documents), true);
    return driverId;
}

std::vector<KZBasicString> DuplicateDevice(Project& project, std::size_t from, std::span<const DeviceNaming> names)
{
    const KZDeviceIdentity source = project.Devices()[from];
    const std::string document = DeviceDocumentName(source.driverId);
    const std::string bytes = DocumentLike(project.Content(document), FileOf(project.Folder(), document));
    XmlDocument& main = *KZMainCfg::Get();
    const KZBasicString groups = zep::FindSetup(main, DeviceElements, source.driverId)->Value(L"groups", L"0x0");
    const VariableList variables = ChosenVariables(main, source.driverId);
    FreeDriverIds free(project);
    std::vector<KZBasicString> driverIds;
    Change documents;
    for (const DeviceNaming& naming : names) {
        const KZBasicString driverId = free.Take(naming.name);
        AppendDevice({driverId, naming, source.typeName, groups});
        CopySetups(source.driverId, driverId);
        SetChosenVariables(main, driverId, RenamedVariables(variables, source.name, naming.name));
        documents.emplace(DeviceDocumentName(driverId), bytes);
        driverIds.push_back(driverId);
    }
    project.ReadDevicesAnew();
    project.KeepUnsaved(std::move(documents), true);
    return driverIds;
}

void RenameDevice(Project& project, std::size_t device, const DeviceNaming& naming)
{
    const KZDeviceIdentity present = project.Devices()[device];
    if (NamingOf(present) == naming)
        return;
    XmlDocument& main = *KZMainCfg::Get();
    Node& element = *zep::FindSetup(main, DeviceElements, present.driverId);
    element.SetValue(L"name", naming.name.c_str());
    if (const int number = ParseCount(naming.number).value_or(0); number != present.number)
        element.SetValue(L"number", number);
    if (present.description != KZBasicString(naming.description))
        element.SetValue(L"description", naming.description.c_str());
    const VariableList variables = ChosenVariables(main, present.driverId);
    SetChosenVariables(main, present.driverId, RenamedVariables(variables, present.name, naming.name));
    project.ReadDevicesAnew();
    project.KeepUnsaved({}, true);
}

void RemoveDevices(Project& project, std::span<const std::size_t> devices)
{
    DriverIds driverIds;
    Change documents;
    for (const std::size_t device : devices) {
        const KZBasicString& driverId = project.Devices()[device].driverId;
        std::string document = DeviceDocumentName(driverId);
        static_cast<void>(project.Content(document));  // whether there is one on disk
        documents.emplace(std::move(document), std::nullopt);
        driverIds.insert(driverId);
    }
    for (const zep::SetupList& setups : AllOfDevice)
        RemoveFrom(setups, driverIds);
    project.ReadDevicesAnew();
    project.KeepUnsaved(std::move(documents), true);
}

}  // namespace plant
