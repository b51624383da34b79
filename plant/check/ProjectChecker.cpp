#include "ProjectChecker.h"

#include "project/DocumentName.h"

namespace plant {

void ProjectChecker::Restart()
{
    std::deque<KZBasicString> devices;
    for (const KZDeviceIdentity& device : m_project.Devices())
        devices.push_back(device.driverId);
    Begin(std::move(devices));
}

// What was waiting goes on waiting.
void ProjectChecker::Restart(const ProjectChange& change)
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

void ProjectChecker::Begin(std::deque<KZBasicString> devices)
{
    m_isComplete = false;
    m_places.clear();
    for (std::size_t place = 0; place < m_project.Devices().size(); ++place)
        m_places.emplace(m_project.Devices()[place].driverId, place);
    ForgetMissing();
    m_waiting = std::move(devices);
    m_part = Part::Units;
    m_reader.reset();
    m_owner = 0;
    m_begun = Left();
}

void ProjectChecker::ForgetMissing()
{
    std::erase_if(m_ofDevices, [this](const auto& device) { return !m_places.contains(device.first); });
    m_all.reset();
}

bool ProjectChecker::Work(std::chrono::milliseconds slice)
{
    const auto end = std::chrono::steady_clock::now() + slice;
    while (IsWorking()) {
        // A list of setups is looked at in one go, which in a large project is a slice of its own.
        const bool isWhole = m_waiting.empty() && m_part < Part::Files;
        CheckNext();
        if (isWhole || std::chrono::steady_clock::now() >= end)
            break;
    }
    m_isComplete = m_isComplete || !IsWorking();
    return IsWorking();
}

void ProjectChecker::CheckNext()
{
    m_all.reset();
    if (m_waiting.empty())
        return CheckPart();
    CheckDevice(m_waiting.front());
    m_waiting.pop_front();
}

void ProjectChecker::CheckDevice(const KZBasicString& driverId)
{
    Findings findings;
    if (const auto place = m_places.find(driverId); place != m_places.end())
        m_check.Check(m_project.Devices()[place->second], findings);
    if (findings.empty())
        m_ofDevices.erase(driverId);
    else
        m_ofDevices[driverId] = std::move(findings);
}

void ProjectChecker::CheckPart()
{
    bool isMore = false;
    if (m_part == Part::Files)
        isMore = ReadFile();
    else if (m_part == Part::Strays)
        isMore = LookForStray();
    else
        CheckList();
    if (!isMore)
        m_part = static_cast<Part>(static_cast<std::size_t>(m_part) + 1);
}

void ProjectChecker::CheckList()
{
    const auto list = static_cast<std::size_t>(m_part);
    m_ofSetups[list].clear();
    CheckSetups(*KZMainCfg::Get(), ListsOfSetups[list], m_project.Devices(), m_ofSetups[list]);
}

bool ProjectChecker::ReadFile()
{
    if (!m_reader)
        m_reader.emplace(m_project.ReadFilesOnDisk());
    if (m_reader->ReadNext())
        return true;
    m_files = m_reader->Take();
    m_reader.reset();
    m_project.AddPending(m_files);
    return false;
}

bool ProjectChecker::LookForStray()
{
    if (m_owner < m_project.Devices().size()) {
        TakeOutOwned(m_files, m_project.Devices()[m_owner++]);
        return true;
    }
    m_ofStrays.clear();
    ReportStrays(m_files, m_ofStrays);
    m_files.clear();
    return false;
}

const XmlDocument::XmlNode* ProjectChecker::Read(const std::string& name)
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

void ProjectChecker::Cancel() noexcept
{
    m_waiting.clear();
    m_reader.reset();
    m_part = Part::Nothing;
}

int ProjectChecker::Percent() const noexcept
{
    return !IsWorking() || m_begun == 0 ? 100 : static_cast<int>((m_begun - Left()) * 100 / m_begun);
}

const Findings& ProjectChecker::All() const
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

}  // namespace plant
