// A project that tests open, change and save, with a user who answers as they say and a disk that can fail.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>

#include "FaultyDisk.h"
#include "KZMainCfg.h"
#include "ProjectFiles.h"
#include "RefusalOf.h"
#include "project/Project.h"

namespace kztest {

class ScriptedUser : public plant::ProjectUser {
public:
    std::deque<Answer> answers;
    std::vector<std::vector<std::string>> asked;
    std::function<void()> whileAsked = [] {};
    unsigned told = 0;  // the text of the last thing told, 0 for nothing
    std::vector<bool> waits;
    std::function<void()> whileWaiting = [] {};
    bool willProtect = false;

    bool WillProtect() noexcept override { return willProtect; }
    Answer AskAboutForeignChanges(const std::vector<std::string>& documents) override
    {
        asked.push_back(documents);
        whileAsked();
        if (answers.empty()) {
            ADD_FAILURE() << "a question that was not expected: " << plant::Joined(documents, ",");
            return Answer::Cancel;
        }
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    void TellUnprotected(const plant::Message& why) noexcept override { told = why.text; }
    void TellWaiting(bool isWaiting) noexcept override
    {
        waits.push_back(isWaiting);
        whileWaiting();
    }
};

[[nodiscard]] inline std::string MainText(const std::string& note)
{
    return "<configuration>\n"
           "  <devices><device><driverId>zep-01</driverId><name>Feeder 1</name></device></devices>\n"
           "  <note>" +
           note + "</note>\n</configuration>\n";
}
[[nodiscard]] inline std::string DeviceText(const std::string& note)
{
    return "<device><note>" + note + "</note></device>\n";
}

class ProjectFixture : public testing::Test {
protected:
    using Answer = plant::ProjectUser::Answer;
    using Outcome = plant::Project::Outcome;
    using Names = std::vector<std::string>;

    ProjectFixture()
    {
        m_folder.Write("main.xml", MainText("old"));
        m_folder.Write("devices/a.xml", DeviceText("old a"));
        m_folder.Write("devices/b.xml", DeviceText("old b"));
    }
    // As a process that is started: what was unsaved in the one before is in a file at most.
    void Open()
    {
        m_project.reset();
        m_project.emplace(m_folder.Path(), m_disk);
        m_project->SetUser(&m_user);
    }
    static void ChangeMain(const wchar_t* note)
    {
        KZMainCfg::Get()->Root()->SetValue(L"note", note);
        KZMainCfg::Get()->SetDirty(true);
    }
    [[nodiscard]] static std::wstring Note() { return KZMainCfg::Get()->Root()->Value(L"note", L""); }
    std::wstring NoteOf(const std::string& device)
    {
        XmlDocument document(L"device");
        m_project->ReadDeviceDocument(device, document);
        return document.Root()->Value(L"note", L"none");
    }
    // As a dialog does that has read the document before.
    Outcome WriteDevice(const std::string& name, const std::string& note)
    {
        XmlDocument document(L"device");
        EXPECT_TRUE(document.Parse(DeviceText(note)));
        return m_project->WriteDocument(name, document, "window");
    }
    // What a process that is gone has left.
    void LeaveUnsaved(plant::Change documents)
    {
        plant::Unsaved unsaved{1, std::move(documents), {}};
        for (const auto& [name, bytes] : unsaved.documents)
            unsaved.before[name] = plant::DocumentHash(plant::RealDisk().Read(plant::FileOf(m_folder.Path(), name)));
        plant::RecoveryFile(plant::RealDisk(), m_folder.Path()).Store(unsaved);
    }
    void RecoverAll()
    {
        for (plant::FoundRecovery& found : m_project->FindUnsaved().found)
            m_project->Recover(found);
    }
    // What would be found if this process were gone now.
    [[nodiscard]] plant::Change Protected()
    {
        m_project.reset();
        plant::Recoveries recoveries = plant::FindRecoveries(plant::RealDisk(), m_folder.Path());
        return recoveries.found.empty() ? plant::Change{} : recoveries.found.front().unsaved.documents;
    }
    [[nodiscard]] Files Documents() const
    {
        Files files = FilesIn(m_folder.Path());
        std::erase_if(files, [](const auto& file) { return !plant::IsDocumentName(file.first); });
        return files;
    }
    [[nodiscard]] std::size_t CountEntries() { return m_project->Entries().size(); }
    [[nodiscard]] std::string ReadMain() const { return m_folder.Read("main.xml"); }

    TemporaryFolder m_folder;
    FaultyDisk m_disk{plant::RealDisk()};
    ScriptedUser m_user;
    std::optional<plant::Project> m_project;
};

}  // namespace kztest
