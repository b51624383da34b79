#include "DeviceRows.h"

#include <algorithm>
#include <map>

#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"
#include "KZUtf8.h"
#include "project/ChosenVariables.h"
#include "text/FieldText.h"
#include "text/PlantMessage.h"

namespace {

int LineCount(std::wstring_view text)
{
    int lines = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
        lines += text[at] != L'\n' && (at == 0 || text[at - 1] == L'\n') ? 1 : 0;
    return lines;
}

// One walk over the document; asking for one device after the other would walk it for each.
std::map<KZBasicString, int> ChosenCounts()
{
    std::map<KZBasicString, int> counts;
    plant::ForEachChoice(*KZMainCfg::Get(), [&counts](const KZBasicString& driverId, std::wstring_view lines) {
        counts.emplace(driverId, LineCount(lines));
    });
    return counts;
}

}  // namespace

DeviceRows::DeviceRows(plant::Project& project, const ModuleLoader& modules)
    : m_project(project), m_modules(modules),
      m_filter(project, [this](std::size_t device) { return MoreWordsOf(device); })
{
    Refresh({true, true, {}});
}

std::wstring DeviceRows::ModelOf(std::size_t device) const
{
    return KZQuorvelantaSetup::Get()->DriverName(m_project.Devices()[device].typeName.c_str()).c_str();
}

std::wstring DeviceRows::MoreWordsOf(std::size_t device) const
{
    std::wstring words = ModelOf(device);
    if (const auto found = m_findings.find(m_project.Devices()[device].name.View()); found != m_findings.end())
        for (const plant::Finding& finding : found->second)
            words.append(L"\n").append(FindingPlace(finding)).append(L"\n").append(PlantMessage(finding.reason));
    return words;
}

bool DeviceRows::ShowFindings(const plant::Findings& findings)
{
    std::map<std::wstring, plant::Findings, std::less<>> ofDevices;
    for (const plant::Finding& finding : findings)
        if (!finding.device.empty())
            ofDevices[FromUtf8(finding.device)].push_back(finding);
    if (ofDevices == m_findings)
        return false;
    m_findings = std::move(ofDevices);
    m_filter.Refresh();
    const std::vector<std::size_t> before = m_shown;
    Order();
    return m_shown != before;
}

void DeviceRows::CountVariables(const plant::ProjectChange& change)
{
    const plant::DeviceList& devices = m_project.Devices();
    if (!change.isAll && !change.isListChanged) {
        for (std::size_t device = 0; device < devices.size(); ++device)
            if (std::find(change.driverIds.begin(), change.driverIds.end(), devices[device].driverId) !=
                change.driverIds.end())
                m_variables[device] =
                    static_cast<int>(plant::ChosenVariables(*KZMainCfg::Get(), devices[device].driverId).size());
        return;
    }
    const std::map<KZBasicString, int> counts = ChosenCounts();
    m_variables.assign(devices.size(), 0);
    for (std::size_t device = 0; device < devices.size(); ++device)
        if (const auto found = counts.find(devices[device].driverId); found != counts.end())
            m_variables[device] = found->second;
}

void DeviceRows::Refresh(const plant::ProjectChange& change)
{
    CountVariables(change);
    m_filter.Refresh(change);
    Order();
}

void DeviceRows::Filter(const std::wstring& text)
{
    m_text = text;
    Order();
}

void DeviceRows::Sort(DeviceColumn column, bool isDescending)
{
    m_sorted = column;
    m_isDescending = isDescending;
    Order();
}

std::wstring DeviceRows::Text(std::size_t device, DeviceColumn column) const
{
    const KZDeviceIdentity& identity = m_project.Devices()[device];
    switch (column) {
    case DeviceColumn::Number:
        return std::to_wstring(identity.number);
    case DeviceColumn::Name:
        return identity.name.c_str();
    case DeviceColumn::Description:
        return identity.description.c_str();
    case DeviceColumn::Model:
        return ModelOf(device);
    case DeviceColumn::Variables:
        return std::to_wstring(m_variables[device]);
    default:
        return {};
    }
}

DeviceSigns DeviceRows::SignsOf(std::size_t device) const
{
    const KZDeviceIdentity& identity = m_project.Devices()[device];
    DeviceSigns signs;
    signs.isChanged = m_project.ChangedDevices().contains(identity.driverId);
    signs.hasFindings = m_findings.contains(identity.name.View());
    signs.hasNoModule = m_modules.CallbacksOf(identity.typeName) == nullptr;
    return signs;
}

// Of a column that is sorted by numbers: the larger, the further down.
std::size_t DeviceRows::WeightOf(std::size_t device, DeviceColumn column) const
{
    if (column == DeviceColumn::Number)
        return static_cast<std::size_t>(m_project.Devices()[device].number);
    if (column == DeviceColumn::Variables)
        return static_cast<std::size_t>(m_variables[device]);
    const DeviceSigns signs = SignsOf(device);
    return (signs.hasNoModule ? 0U : 4U) + (signs.hasFindings ? 0U : 2U) + (signs.isChanged ? 0U : 1U);
}

// Texts are compared without capitals and accents; equal ones keep the order of the project.
void DeviceRows::Order()
{
    m_shown = m_filter.Matching(m_text);
    if (!m_sorted)
        return;
    const bool isText =
        *m_sorted == DeviceColumn::Name || *m_sorted == DeviceColumn::Description || *m_sorted == DeviceColumn::Model;
    struct Key {
        std::wstring text;
        std::size_t weight;
        std::size_t device;
    };
    std::vector<Key> keys;
    keys.reserve(m_shown.size());
    for (const std::size_t device : m_shown)
        keys.push_back({isText ? plant::Folded(Text(device, *m_sorted)) : std::wstring(),
                        isText ? 0U : WeightOf(device, *m_sorted), device});
    std::stable_sort(keys.begin(), keys.end(), [this](const Key& one, const Key& other) {
        const Key& first = m_isDescending ? other : one;
        const Key& second = m_isDescending ? one : other;
        return first.weight != second.weight ? first.weight < second.weight : first.text < second.text;
    });
    std::transform(keys.begin(), keys.end(), m_shown.begin(), [](const Key& key) { return key.device; });
}
