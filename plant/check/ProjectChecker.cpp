#include "ProjectChecker.h"

#include <deque>
#include <map>

#include "KZMainCfg.h"
#include "project/DocumentName.h"

namespace plant {

class ProjectChecker::State {
public:
    explicit State(Project& project) : m_project(project) {}

    void Restart();
    void Restart(const ProjectChange& change);
    bool Work(std::chrono::milliseconds slice);
    void Cancel() noexcept;

    [[nodiscard]] bool IsWorking() const noexcept { return !m_waiting.empty() || m_part != Part::Nothing; }
    [[nodiscard]] bool IsComplete() const noexcept { return m_isComplete; }
    [[nodiscard]] int Percent() const noexcept;
    [[nodiscard]] const Findings& All();
    [[nodiscard]] std::size_t CountOf(const KZBasicString& driverId) const;

private:
    // What is looked at behind the devices.
    enum class Part { Units, Limits, Variables, Files, Strays, Nothing };
    static constexpr std::size_t Parts = static_cast<std::size_t>(Part::Nothing);

    void Begin(std::deque<KZBasicString> devices);
    void CheckNext();
    void CheckDevice(const KZBasicString& driverId);
    void CheckPart();
    void ForgetMissing();
    const XmlDocument::XmlNode* Read(const std::string& name);
    [[nodiscard]] std::size_t Left() const noexcept
    {
        return m_waiting.size() + Parts - static_cast<std::size_t>(m_part);
    }

    Project& m_project;
    std::map<KZBasicString, std::size_t> m_places;  // of the devices in the list
    std::map<KZBasicString, Findings> m_ofDevices;  // of those that have any
    std::array<Findings, ListsOfSetups.size()> m_ofSetups;
    Findings m_ofStrays;
    DocumentFiles m_files;

    std::deque<KZBasicString> m_waiting;  // driverIds
    Part m_part = Part::Nothing;
    std::size_t m_begun = 0;
    bool m_isComplete = false;
    XmlDocument m_document{L"device"};  // of the device that is looked at
    DeviceCheck m_check{*KZMainCfg::Get(), [this](const std::string& name) { return Read(name); }};
    std::optional<Findings> m_all;
};

void ProjectChecker::State::Restart()
{
    std::deque<KZBasicString> devices;
    for (const KZDeviceIdentity& device : m_project.Devices())
        devices.push_back(device.driverId);
    Begin(std::move(devices));
}

// What was waiting goes on waiting.
void ProjectChecker::State::Restart(const ProjectChange& change)
{
    if (change.isAll || (!m_isComplete && !IsWorking()))
        return Restart();
    if (!change.isListChanged && change.driverIds.empty())
        return;
    std::deque<KZBasicString> devices(change.driverIds.begin(), change.driverIds.end());
    const DriverIds again(change.driverIds.begin(), change.driverIds.end());
    for (const KZBasicString& driverId : m_waiting)
        if (!again.contains(driverId))
            devices.push_back(driverId);
    Begin(std::move(devices));
}

void ProjectChecker::State::Begin(std::deque<KZBasicString> devices)
{
    m_isComplete = false;
    m_places.clear();
    for (std::size_t place = 0; place < m_project.Devices().size(); ++place)
        m_places.emplace(m_project.Devices()[place].driverId, place);
    ForgetMissing();
    m_waiting = std::move(devices);
    m_part = Part::Units;
    m_begun = Left();
}

void ProjectChecker::State::ForgetMissing()
{
    std::erase_if(m_ofDevices, [this](const auto& device) { return !m_places.contains(device.first); });
    m_all.reset();
}

bool ProjectChecker::State::Work(std::chrono::milliseconds slice)
{
    const auto end = std::chrono::steady_clock::now() + slice;
    while (IsWorking()) {
        CheckNext();
        if (std::chrono::steady_clock::now() >= end)
            break;
    }
    m_isComplete = m_isComplete || !IsWorking();
    return IsWorking();
}

void ProjectChecker::State::CheckNext()
{
    m_all.reset();
    if (m_waiting.empty())
        return CheckPart();
    CheckDevice(m_waiting.front());
    m_waiting.pop_front();
}

void ProjectChecker::State::CheckDevice(const KZBasicString& driverId)
{
    Findings findings;
    if (const auto place = m_places.find(driverId); place != m_places.end())
        m_check.Check(m_project.Devices()[place->second], findings);
    if (findings.empty())
        m_ofDevices.erase(driverId);
    else
        m_ofDevices[driverId] = std::move(findings);
}

void ProjectChecker::State::CheckPart()
{
    if (m_part == Part::Files) {
        m_files = m_project.FilesShown();
    } else if (m_part == Part::Strays) {
        m_ofStrays.clear();
        CheckStrays(m_files, m_project.Devices(), m_ofStrays);
        m_files.clear();
    } else {
        const auto list = static_cast<std::size_t>(m_part);
        m_ofSetups[list].clear();
        CheckSetups(*KZMainCfg::Get(), ListsOfSetups[list], m_project.Devices(), m_ofSetups[list]);
    }
    m_part = static_cast<Part>(static_cast<std::size_t>(m_part) + 1);
}

const XmlDocument::XmlNode* ProjectChecker::State::Read(const std::string& name)
{
    const std::optional<std::string> bytes = m_project.Peek(name);
    const Path file = FileOf(m_project.Folder(), name);
    if (!bytes)
        throw Refusal(IDS_PLANT_CHECK_NO_DOCUMENT, {Shown(file)});
    if (bytes->empty())
        return nullptr;
    ParseDocument(m_document, *bytes, file);
    return m_document.Root();
}

void ProjectChecker::State::Cancel() noexcept
{
    m_waiting.clear();
    m_part = Part::Nothing;
}

int ProjectChecker::State::Percent() const noexcept
{
    return !IsWorking() || m_begun == 0 ? 100 : static_cast<int>((m_begun - Left()) * 100 / m_begun);
}

const Findings& ProjectChecker::State::All()
{
    if (m_all)
        return *m_all;
    Findings all;
    const auto append = [&](const Findings& findings) { all.insert(all.end(), findings.begin(), findings.end()); };
    std::map<std::size_t, const Findings*> byPlace;
    for (const auto& [driverId, findings] : m_ofDevices)
        byPlace.emplace(m_places.at(driverId), &findings);
    for (const auto& [place, findings] : byPlace)
        append(*findings);
    for (const Findings& findings : m_ofSetups)
        append(findings);
    append(m_ofStrays);
    return m_all.emplace(std::move(all));
}

std::size_t ProjectChecker::State::CountOf(const KZBasicString& driverId) const
{
    const auto found = m_ofDevices.find(driverId);
    return found == m_ofDevices.end() ? 0 : found->second.size();
}

ProjectChecker::ProjectChecker(Project& project) : m_state(std::make_unique<State>(project)) {}

ProjectChecker::~ProjectChecker() = default;

void ProjectChecker::Restart()
{
    m_state->Restart();
}

void ProjectChecker::Restart(const ProjectChange& change)
{
    m_state->Restart(change);
}

bool ProjectChecker::Work(std::chrono::milliseconds slice)
{
    return m_state->Work(slice);
}

void ProjectChecker::Cancel() noexcept
{
    m_state->Cancel();
}

bool ProjectChecker::IsWorking() const noexcept
{
    return m_state->IsWorking();
}

bool ProjectChecker::IsComplete() const noexcept
{
    return m_state->IsComplete();
}

int ProjectChecker::Percent() const noexcept
{
    return m_state->Percent();
}

const Findings& ProjectChecker::All() const
{
    return m_state->All();
}

std::size_t ProjectChecker::CountOf(const KZBasicString& driverId) const
{
    return m_state->CountOf(driverId);
}

}  // namespace plant
