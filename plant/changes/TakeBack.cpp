// Bringing back some of what differs from the files.
#include <algorithm>

#include "ChildOrNew.h"
#include "DeviceEdit.h"
#include "DeviceElements.h"
#include "InformationRecord.h"
#include "KZMainCfg.h"
#include "Review.h"
#include "SavedMain.h"
#include "fields/DeviceRecords.h"
#include "fields/ZepFields.h"
#include "project/DocumentName.h"
#include "project/StoredProject.h"

namespace plant {

namespace {

using What = ReviewLine::What;
using Node = XmlDocument::XmlNode;

void CopyValue(Node& to, const Node* from, const wchar_t* name)
{
    if (const wchar_t* const text = from ? from->Value(name, nullptr) : nullptr)
        to.SetValue(name, text);
    else
        to.RemoveChild(to.FirstChild(name));
}

void Refill(Node& to, const Node& from)
{
    while (const XmlDocument::Element child = to.Look().FirstChild())
        to.RemoveChild(to.FirstChild(child.Name()));
    CopyInto(to, from.Look());
}

class TakingBack {
public:
    explicit TakingBack(Project& project) : m_project(project), m_saved(project) {}
    void Take(std::span<const ReviewLine> lines);

private:
    void RemoveAdded(std::span<const ReviewLine> lines);
    void BringBack(const KZBasicString& driverId);
    void RequireFree(const KZDeviceIdentity& device) const;
    void TakeOne(const ReviewLine& line);
    void TakeNaming(const ReviewLine& line);
    void TakeSetup(const zep::SetupList& setups, const KZBasicString& driverId);
    void TakeSettings(const KZBasicString& driverId);
    void TakeValue(const ReviewLine& line);
    void TakeInformation(const ReviewLine& line);
    void TakeEqualSetups(const ReviewLine& line);
    void RemoveEmptyLists();
    void TakeFrom(const zep::SetupList& setups, const ReviewLine& line, const wchar_t* name);
    void LeaveOutUnchanged();
    [[nodiscard]] static Node* PartOf(const Node* setup, const Field& field);
    [[nodiscard]] const Node* SavedSetup(const zep::SetupList& setups, const KZBasicString& driverId) const
    {
        return zep::FindSetup(m_saved.Main(), setups, driverId);
    }
    [[nodiscard]] Node* Setup(const zep::SetupList& setups, const KZBasicString& driverId) const
    {
        return zep::FindSetup(m_main, setups, driverId);
    }

    Project& m_project;
    SavedMain m_saved;
    XmlDocument& m_main = *KZMainCfg::Get();
    Change m_documents;
};

void TakingBack::Take(std::span<const ReviewLine> lines)
{
    RemoveAdded(lines);
    for (const ReviewLine& line : lines)
        if (line.what == What::Removed)
            BringBack(line.driverId);
    for (const ReviewLine& line : lines)
        TakeOne(line);
    for (const ReviewLine& line : lines)
        if (line.field && line.field->section != FieldSection::Device && m_saved.Find(line.driverId))
            TakeEqualSetups(line);
    RemoveEmptyLists();
    LeaveOutUnchanged();
    m_project.KeepUnsaved(std::move(m_documents), true);
    // What is the file's again needs no saving.
    if (m_main.Root()->Fingerprint() == m_saved.Main().Root()->Fingerprint() && m_main.Serialize() == m_saved.Bytes()) {
        m_main.SetDirty(false);
        m_project.KeepUnsaved({}, false);
    }
}

void TakingBack::RemoveAdded(std::span<const ReviewLine> lines)
{
    DriverIds added;
    for (const ReviewLine& line : lines)
        if (line.what == What::Added)
            added.insert(line.driverId);
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < m_project.Devices().size(); ++place)
        if (added.contains(m_project.Devices()[place].driverId))
            places.push_back(place);
    if (!places.empty())
        RemoveDevices(m_project, places);
}

void TakingBack::RequireFree(const KZDeviceIdentity& device) const
{
    const auto isTaken = [&](const KZDeviceIdentity& other) {
        return other.name == device.name ||
               IsSameName(DeviceDocumentName(other.driverId), DeviceDocumentName(device.driverId));
    };
    const DeviceList& devices = m_project.Devices();
    if (std::any_of(devices.begin(), devices.end(), isTaken))
        throw Refusal(IDS_PLANT_CANNOT_COME_BACK, {device.name.c_str()});
}

// In front of the device that stood behind it.
void TakingBack::BringBack(const KZBasicString& driverId)
{
    const KZDeviceIdentity* const device = m_saved.Find(driverId);
    if (!device)
        return;
    RequireFree(*device);
    Node* before = nullptr;
    for (const KZDeviceIdentity* next = device + 1;
         !before && next < m_saved.Devices().data() + m_saved.Devices().size(); ++next)
        before = Setup(DeviceElements, next->driverId);
    Node& list = zep::ChildOrNew(*m_main.Root(), DeviceElements.list);
    CopyInto(*list.NewChild(DeviceElements.element, before), SavedSetup(DeviceElements, driverId)->Look());
    for (const zep::SetupList& setups : ListsOfSetups)
        TakeSetup(setups, driverId);
    const std::string document = DeviceDocumentName(driverId);
    m_documents[document] = m_project.SavedContent(document);
    m_project.ReadDevicesAnew();
}

void TakingBack::TakeOne(const ReviewLine& line)
{
    // A device that is gone by now has nothing to take back.
    if (!Setup(DeviceElements, line.driverId) || !m_saved.Find(line.driverId))
        return;
    switch (line.what) {
    case What::Value:
        return TakeValue(line);
    case What::Name:
    case What::Number:
    case What::Description:
        return TakeNaming(line);
    case What::Variables:
        return TakeSetup(Selections, line.driverId);
    case What::Settings:
        return TakeSettings(line.driverId);
    case What::Document:
        m_documents[DeviceDocumentName(line.driverId)] = m_project.SavedContent(DeviceDocumentName(line.driverId));
        return;
    default:
        return;
    }
}

void TakingBack::TakeNaming(const ReviewLine& line)
{
    const DeviceList& devices = m_project.Devices();
    const auto device = std::find_if(devices.begin(), devices.end(),
                                     [&](const KZDeviceIdentity& other) { return other.driverId == line.driverId; });
    const KZDeviceIdentity saved = *m_saved.Find(line.driverId);
    const auto isTaken = [&](const KZDeviceIdentity& other) { return &other != &*device && other.name == saved.name; };
    if (line.what == What::Name && std::any_of(devices.begin(), devices.end(), isTaken))
        throw Refusal(IDS_PLANT_CANNOT_COME_BACK, {saved.name.c_str()});
    if (line.what == What::Name)
        SetChosenVariables(m_main, line.driverId,
                           RenamedVariables(ChosenVariables(m_main, line.driverId), device->name, saved.name));
    const wchar_t* const name = line.what == What::Name     ? L"name"
                                : line.what == What::Number ? L"number"
                                                            : L"description";
    CopyValue(*Setup(DeviceElements, line.driverId), SavedSetup(DeviceElements, line.driverId), name);
    m_project.ReadDevicesAnew();
}

void TakingBack::TakeSetup(const zep::SetupList& setups, const KZBasicString& driverId)
{
    const Node* const saved = SavedSetup(setups, driverId);
    Node* const now = Setup(setups, driverId);
    if (saved && now && saved->Fingerprint() == now->Fingerprint())
        return;
    if (saved && now)
        Refill(*now, *saved);
    else if (saved)
        CopyInto(zep::AppendSetup(m_main, setups, driverId), saved->Look());
    else if (now)
        m_main.Node(setups.list)->RemoveChild(now);
}

void TakingBack::TakeSettings(const KZBasicString& driverId)
{
    for (const zep::SetupList& setups : AllOfDevice)
        TakeSetup(setups, driverId);
    m_project.ReadDevicesAnew();
}

void TakingBack::TakeValue(const ReviewLine& line)
{
    const Field& field = *line.field;
    if (field.section == FieldSection::Device)
        return TakeInformation(line);
    if (field.section == FieldSection::Limits)
        return TakeFrom(zep::ViewSetups, line, zep::LimitFieldNames[field.item]);
    const bool isScale = field.item == static_cast<std::size_t>(UnitItem::Scale);
    TakeFrom(zep::UnitSetups, line, isScale ? zep::FactorName : zep::DecimalsName);
}

// The element of a setup that holds a field; null when it is missing.
Node* TakingBack::PartOf(const Node* setup, const Field& field)
{
    if (!setup)
        return nullptr;
    if (field.section == FieldSection::Units)
        return zep::FindUnit(*setup, static_cast<zep::PowerUnit>(field.part));
    return setup->NodeV(L"%s?%s=%s?", zep::CheckElement, zep::CheckVariable,
                        LimitVariables()[field.part].Variable().name.data());
}

void TakingBack::TakeFrom(const zep::SetupList& setups, const ReviewLine& line, const wchar_t* name)
{
    const Node* const saved = PartOf(SavedSetup(setups, line.driverId), *line.field);
    Node* const setup = Setup(setups, line.driverId);
    Node* const now = PartOf(setup, *line.field);
    if (!now && saved)
        return CopyInto(
            *(setup ? setup : &zep::AppendSetup(m_main, setups, line.driverId))->NewChild(saved->Name(), nullptr),
            saved->Look());
    if (!now)
        return;
    CopyValue(*now, saved, name);
}

// A setup whose values are all as saved becomes the saved one, and is gone where there was none.
void TakingBack::TakeEqualSetups(const ReviewLine& line)
{
    const FieldTable& table = *FieldsOfType(m_saved.Find(line.driverId)->typeName.View());
    DeviceRecords saved(table);
    DeviceRecords now(table);
    saved.Find(m_saved.Main(), nullptr, line.driverId);
    now.Find(m_main, nullptr, line.driverId);
    const auto differs = [&](const Field& field) {
        return field.section == line.field->section && now.Value(field) != saved.Value(field);
    };
    if (std::none_of(table.begin(), table.end(), differs))
        TakeSetup(line.field->section == FieldSection::Units ? zep::UnitSetups : zep::ViewSetups, line.driverId);
}

// Lists that were made for what is gone by now.
void TakingBack::RemoveEmptyLists()
{
    for (const zep::SetupList& setups : AllOfDevice)
        if (Node* const list = m_main.Node(setups.list);
            list && !list->Look().FirstChild() && !m_saved.Main().Node(setups.list))
            m_main.Root()->RemoveChild(list);
}

void TakingBack::TakeInformation(const ReviewLine& line)
{
    const std::string name = DeviceDocumentName(line.driverId);
    const Path file = FileOf(m_project.Folder(), name);
    const auto read = [&](XmlDocument& document, const std::optional<std::string>& bytes) {
        if (bytes && !bytes->empty())
            ParseDocument(document, *bytes, file);
    };
    XmlDocument saved(L"device");
    XmlDocument now(L"device");
    read(saved, m_project.SavedContent(name));
    const auto known = m_documents.find(name);
    read(now, known == m_documents.end() ? m_project.Peek(name) : known->second);
    CopyValue(zep::ChildOrNew(*now.Root(), zep::InformationElement), saved.Node(zep::InformationElement),
              zep::InformationFields[line.field->part].name);
    m_documents[name] = now.Serialize();
}

// A document in which nothing is different any more becomes the saved one, byte for byte.
void TakingBack::LeaveOutUnchanged()
{
    for (auto& [name, bytes] : m_documents) {
        std::optional<std::string> saved = m_project.SavedContent(name);
        XmlDocument documentSaved(L"device");
        XmlDocument documentNow(L"device");
        const bool areRead = saved && bytes && documentSaved.Parse(*saved) && documentNow.Parse(*bytes);
        if (areRead && documentSaved.Root()->Fingerprint() == documentNow.Root()->Fingerprint())
            bytes = std::move(saved);
    }
}

}  // namespace

void TakeBack(Project& project, std::span<const ReviewLine> lines)
{
    TakingBack(project).Take(lines);
}

}  // namespace plant
