#include "Review.h"

#include <algorithm>
#include <cwchar>
#include <set>
#include <unordered_set>

#include "DeviceEdit.h"
#include "DeviceElements.h"
#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "SavedMain.h"
#include "fields/DeviceRecords.h"
#include "project/DocumentName.h"

namespace plant {

namespace {

using What = ReviewLine::What;
using Node = XmlDocument::XmlNode;

class Reviewing {
public:
    explicit Reviewing(Project& project) : m_project(project), m_saved(project) {}
    std::vector<ReviewLine> Lines();

private:
    void Compare(const KZDeviceIdentity& now, const KZDeviceIdentity& saved);
    void CompareNaming(const DeviceNaming& now, const DeviceNaming& saved);
    void CompareFields(const FieldTable& table, const Node* now, const Node* saved);
    void CompareVariables();
    void Add(What what, std::string before = {}, std::string after = {}, const Field* field = nullptr);
    [[nodiscard]] bool Has(std::size_t first, bool isInDocument) const;
    [[nodiscard]] bool HasStrayDocument() const;
    [[nodiscard]] std::wstring Rest(const XmlDocument& main) const;
    static const Node* RootOf(const std::optional<std::string>& bytes, XmlDocument& document);

    Project& m_project;
    SavedMain m_saved;
    const XmlDocument& m_main = *KZMainCfg::Get();
    KZBasicString m_driverId;  // of the device that is compared
    std::string m_name;
    std::vector<ReviewLine> m_lines;
};

std::string Utf8(const KZBasicString& text)
{
    return ToUtf8(text.View());
}

bool IsOfDocument(const ReviewLine& line) noexcept
{
    return line.what == What::Document || (line.field && line.field->section == FieldSection::Device);
}

void AppendAll(std::wstring& text, XmlDocument::Element element)
{
    text.append(element.Name()).append(L"=").append(element.Text()).append(L"(");
    for (XmlDocument::Element child = element.FirstChild(); child; child = child.NextSibling())
        AppendAll(text, child);
    text.append(L")");
}

void Reviewing::Add(What what, std::string before, std::string after, const Field* field)
{
    m_lines.push_back({what, m_driverId, m_name, field, std::move(before), std::move(after)});
}

std::vector<ReviewLine> Reviewing::Lines()
{
    std::unordered_set<std::wstring_view> present;
    for (const KZDeviceIdentity& device : m_project.Devices()) {
        present.insert(device.driverId.View());
        m_driverId = device.driverId;
        m_name = Utf8(device.name);
        if (const KZDeviceIdentity* const saved = m_saved.Find(device.driverId))
            Compare(device, *saved);
        else
            Add(What::Added);
    }
    for (const KZDeviceIdentity& device : m_saved.Devices())
        if (!present.contains(device.driverId.View())) {
            m_driverId = device.driverId;
            m_name = Utf8(device.name);
            Add(What::Removed);
        }
    if (HasStrayDocument() || Rest(m_main) != Rest(m_saved.Main())) {
        m_driverId.Clear();
        m_name.clear();
        Add(What::Other);
    }
    return std::move(m_lines);
}

void Reviewing::Compare(const KZDeviceIdentity& now, const KZDeviceIdentity& saved)
{
    const std::string document = DeviceDocumentName(now.driverId);
    const auto pending = m_project.Pending().find(document);
    std::optional<std::string> bytes;
    const bool documentDiffers =
        pending != m_project.Pending().end() && (bytes = m_project.SavedContent(document)) != pending->second;
    const bool mainDiffers = FingerprintOf(m_main, now.driverId) != FingerprintOf(m_saved.Main(), now.driverId);
    if (!mainDiffers && !documentDiffers)
        return;
    const std::size_t first = m_lines.size();
    CompareNaming(NamingOf(now), NamingOf(saved));
    XmlDocument documentNow(L"device");
    XmlDocument documentSaved(L"device");
    const FieldTable* const table = FieldsOfType(now.typeName.View());
    if (table && now.typeName == saved.typeName)
        CompareFields(*table, documentDiffers ? RootOf(pending->second, documentNow) : nullptr,
                      documentDiffers ? RootOf(bytes, documentSaved) : nullptr);
    CompareVariables();
    if (mainDiffers && !Has(first, false))
        Add(What::Settings);
    if (documentDiffers && !Has(first, true))
        Add(What::Document);
}

// Null for a document that is missing, empty or broken.
const Node* Reviewing::RootOf(const std::optional<std::string>& bytes, XmlDocument& document)
{
    return bytes && !bytes->empty() && document.Parse(*bytes) ? document.Root() : nullptr;
}

void Reviewing::CompareNaming(const DeviceNaming& now, const DeviceNaming& saved)
{
    const auto compare = [this](What what, const std::wstring& before, const std::wstring& after) {
        if (before != after)
            Add(what, ToUtf8(before), ToUtf8(after));
    };
    compare(What::Name, saved.name, now.name);
    compare(What::Number, saved.number, now.number);
    compare(What::Description, saved.description, now.description);
}

void Reviewing::CompareFields(const FieldTable& table, const Node* now, const Node* saved)
{
    DeviceRecords recordsNow(table);
    DeviceRecords recordsSaved(table);
    recordsNow.Find(m_main, now, m_driverId);
    recordsSaved.Find(m_saved.Main(), saved, m_driverId);
    for (const Field& field : table) {
        if (std::wcscmp(recordsNow.Text(field), recordsSaved.Text(field)) == 0)
            continue;
        std::string before = recordsSaved.Value(field);
        std::string after = recordsNow.Value(field);
        if (before != after)
            Add(What::Value, std::move(before), std::move(after), &field);
    }
}

void Reviewing::CompareVariables()
{
    const auto joined = [this](const XmlDocument& main) {
        std::string names;
        for (const KZBasicString& variable : ChosenVariables(main, m_driverId))
            names.append(names.empty() ? "" : "\n").append(Utf8(variable));
        return names;
    };
    std::string before = joined(m_saved.Main());
    std::string after = joined(m_main);
    if (before != after)
        Add(What::Variables, std::move(before), std::move(after));
}

bool Reviewing::Has(std::size_t first, bool isInDocument) const
{
    return std::any_of(m_lines.begin() + static_cast<std::ptrdiff_t>(first), m_lines.end(),
                       [=](const ReviewLine& line) { return IsOfDocument(line) == isInDocument; });
}

// A changed document of a device that neither of the lists has.
bool Reviewing::HasStrayDocument() const
{
    const Change& pending = m_project.Pending();
    if (pending.empty())
        return false;
    std::set<std::string, NameLess> known;
    for (const DeviceList* const devices : {&m_project.Devices(), &m_saved.Devices()})
        for (const KZDeviceIdentity& device : *devices)
            known.insert(DeviceDocumentName(device.driverId));
    return std::any_of(pending.begin(), pending.end(),
                       [&](const auto& document) { return !known.contains(document.first); });
}

// What belongs to no device that either of the lists has.
std::wstring Reviewing::Rest(const XmlDocument& main) const
{
    std::unordered_set<std::wstring_view> known;
    for (const DeviceList* const devices : {&m_project.Devices(), &m_saved.Devices()})
        for (const KZDeviceIdentity& device : *devices)
            known.insert(device.driverId.View());
    std::wstring rest;
    for (XmlDocument::Element child = main.Root()->Look().FirstChild(); child; child = child.NextSibling()) {
        const auto isList = [&](const zep::SetupList& list) { return std::wcscmp(list.list, child.Name()) == 0; };
        const auto list = std::find_if(AllOfDevice.begin(), AllOfDevice.end(), isList);
        if (list == AllOfDevice.end())
            AppendAll(rest, child);
    }
    for (const zep::SetupList& setups : ListsOfSetups) {
        const Node* const list = main.Node(setups.list);
        for (const Node* setup = list ? list->FirstChild(setups.element) : nullptr; setup;
             setup = setup->NextSibling(setups.element))
            if (!known.contains(setup->Value(zep::DriverIdName, L"")))
                AppendAll(rest, setup->Look());
    }
    return rest;
}

}  // namespace

std::vector<ReviewLine> Review(Project& project)
{
    return Reviewing(project).Lines();
}

ReviewCount CountOf(std::span<const ReviewLine> lines)
{
    DriverIds devices;
    for (const ReviewLine& line : lines)
        if (!line.driverId.IsEmpty())
            devices.insert(line.driverId);
    return {lines.size(), devices.size()};
}

}  // namespace plant
