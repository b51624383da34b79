// Checks a project as it is open, unsaved changes included, a slice at a time.
#pragma once

#include <array>
#include <chrono>
#include <deque>
#include <map>
#include <optional>

#include "KZMainCfg.h"
#include "ProjectCheck.h"
#include "project/Project.h"

namespace plant {

class ProjectChecker {
public:
    // The project must outlive this object. Nothing is checked yet.
    explicit ProjectChecker(Project& project) : m_project(project) {}
    ~ProjectChecker() = default;
    ProjectChecker(const ProjectChecker&) = delete;
    ProjectChecker& operator=(const ProjectChecker&) = delete;

    // Begins anew: with everything, or with what a change may have made different. What was found before stays to be
    // shown until it is found anew or not.
    void Restart();
    void Restart(const ProjectChange& change);
    // As long as a user does not notice that something else is done.
    static constexpr std::chrono::milliseconds Slice{10};
    // Goes on for about so long. Returns whether there is more to do.
    bool Work(std::chrono::milliseconds slice);
    // Leaves off; the findings so far stay.
    void Cancel() noexcept;

    [[nodiscard]] bool IsWorking() const noexcept { return !m_waiting.empty() || m_part != Part::Nothing; }
    // Whether all has been looked at since the last change.
    [[nodiscard]] bool IsComplete() const noexcept { return m_isComplete; }
    // How much is done of what was begun, 0 to 100.
    [[nodiscard]] int Percent() const noexcept;

    // All findings in the order of CheckProject, which finds the same in the project once it is saved. Valid until the
    // next Restart or Work.
    [[nodiscard]] const Findings& All() const;

private:
    // What is looked at behind the devices.
    enum class Part { Units, Limits, Variables, Files, Strays, Nothing };
    static constexpr std::size_t Parts = static_cast<std::size_t>(Part::Nothing);

    void Begin(std::deque<KZBasicString> devices);
    void CheckNext();
    void CheckDevice(const KZBasicString& driverId);
    void CheckPart();
    void CheckList();
    // One step each; return whether there is more of the part.
    bool ReadFile();
    bool LookForStray();
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

    std::deque<KZBasicString> m_waiting;  // driverIds
    Part m_part = Part::Nothing;
    std::optional<DocumentReader> m_reader;
    DocumentFiles m_files;    // those that may be nobody's
    std::size_t m_owner = 0;  // the device whose document is looked for among them
    std::size_t m_begun = 0;
    bool m_isComplete = false;
    XmlDocument m_document{L"device"};  // of the device that is looked at
    DeviceCheck m_check{*KZMainCfg::Get(), [this](const std::string& name) { return Read(name); }};
    mutable std::optional<Findings> m_all;
};

}  // namespace plant
