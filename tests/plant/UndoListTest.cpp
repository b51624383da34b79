// What was changed in a project, undone and redone.
#include "changes/UndoList.h"

#include <gmock/gmock.h>

#include "DriverSetup.h"
#include "ProjectFixture.h"

namespace plant {

namespace {

using kztest::DeviceText;
using kztest::MainText;
using kztest::Refused;
using testing::ElementsAre;
using testing::IsEmpty;

struct Told {
    bool isAll;
    bool isListChanged;
    std::vector<KZBasicString> driverIds;
};

class Listener : public ProjectListener {
public:
    void OnProjectChanged(const ProjectChange& change) noexcept override
    {
        told.push_back({change.isAll, change.isListChanged, {change.driverIds.begin(), change.driverIds.end()}});
    }
    std::vector<Told> told;
};

class UndoListTest : public kztest::ProjectFixture {
protected:
    UndoListTest()
    {
        m_folder.Write("devices/zep-01.xml", DeviceText("old"));
        Reopen();
    }
    void Reopen()
    {
        m_undo.reset();
        Open();
        m_undo.emplace(*m_project);
    }
    bool Do(const std::function<void()>& change)
    {
        return m_undo->Do({IDS_PLANT_STEP_OPTIONS, {}}, m_driverIds, change);
    }
    bool DoNote(const wchar_t* note)
    {
        return Do([=] { ChangeMain(note); });
    }
    // As values that wait for a save.
    bool DoDocument(const std::optional<std::string>& bytes)
    {
        return Do([=, this] { m_project->KeepUnsaved({{Document, bytes}}, false); });
    }
    // As a dialog that writes its document at once.
    bool DoDialog(const std::string& note)
    {
        return Do([=, this] { WriteDevice(Document, note); });
    }
    [[nodiscard]] static std::string Main() { return KZMainCfg::Get()->Serialize(); }
    [[nodiscard]] std::string OnDisk() { return m_folder.Read(Document); }
    [[nodiscard]] std::optional<std::string> Shown() { return m_project->Content(Document); }

    static constexpr const char* Document = "devices/zep-01.xml";
    std::vector<KZBasicString> m_driverIds{L"zep-01"};
    std::optional<UndoList> m_undo;
};

TEST_F(UndoListTest, HasNothingToUndoAtFirst)
{
    EXPECT_FALSE(m_undo->CanUndo());
    EXPECT_FALSE(m_undo->CanRedo());
    EXPECT_EQ(m_undo->UndoName(), nullptr);
    EXPECT_EQ(m_undo->RedoName(), nullptr);
    EXPECT_FALSE(m_undo->Undo());
    EXPECT_FALSE(m_undo->Redo());
}

TEST_F(UndoListTest, KeepsNoStepOfWhatChangesNothing)
{
    EXPECT_FALSE(Do([] {}));
    EXPECT_FALSE(DoNote(L"old"));
    EXPECT_FALSE(DoDocument(DeviceText("old")));
    EXPECT_FALSE(m_undo->CanUndo());
}

TEST_F(UndoListTest, GoesBackAndForthInBothKindsOfDocuments)
{
    const std::string before = Main();
    EXPECT_TRUE(DoNote(L"new"));
    const std::string after = Main();
    EXPECT_TRUE(DoDocument(DeviceText("new")));
    EXPECT_TRUE(DoDocument(std::nullopt));
    for (int turn = 0; turn < 2; ++turn) {
        EXPECT_TRUE(m_undo->Undo());
        EXPECT_EQ(Shown(), DeviceText("new"));
        EXPECT_TRUE(m_undo->Undo());
        EXPECT_EQ(Shown(), DeviceText("old"));
        EXPECT_EQ(Main(), after);
        EXPECT_TRUE(m_project->IsDirty());
        EXPECT_TRUE(m_undo->Undo());
        EXPECT_EQ(Main(), before);
        EXPECT_FALSE(m_project->IsDirty());
        EXPECT_FALSE(m_undo->Undo());
        for (int step = 0; step < 3; ++step)
            EXPECT_TRUE(m_undo->Redo());
        EXPECT_FALSE(m_undo->Redo());
        EXPECT_EQ(Main(), after);
        EXPECT_EQ(Shown(), std::nullopt);
        EXPECT_TRUE(m_project->IsDirty());
    }
    EXPECT_EQ(OnDisk(), DeviceText("old"));
}

TEST_F(UndoListTest, NamesWhatWouldBeUndoneAndRedone)
{
    for (const wchar_t* name : {L"first", L"second"})
        m_undo->Do({IDS_PLANT_STEP_ADD, {name}}, {}, [=] { ChangeMain(name); });
    m_undo->Undo();
    EXPECT_EQ(*m_undo->UndoName(), (Message{IDS_PLANT_STEP_ADD, {L"first"}}));
    EXPECT_EQ(*m_undo->RedoName(), (Message{IDS_PLANT_STEP_ADD, {L"second"}}));
}

TEST_F(UndoListTest, ForgetsWhatWasUndoneWithTheNextChange)
{
    DoNote(L"first");
    m_undo->Undo();
    DoNote(L"second");
    EXPECT_FALSE(m_undo->CanRedo());
    m_undo->Undo();
    EXPECT_EQ(Main(), MainText("old"));
    EXPECT_EQ(m_undo->Count(), 1u);
}

TEST_F(UndoListTest, MakesUnsavedChangesOfWhatWasSaved)
{
    DoNote(L"new");
    DoDocument(DeviceText("new"));
    m_project->Save("window");
    EXPECT_TRUE(m_undo->Undo());
    EXPECT_TRUE(m_project->IsUnsaved(Document));
    EXPECT_FALSE(m_project->IsUnsaved("main.xml"));
    EXPECT_TRUE(m_undo->Undo());
    EXPECT_TRUE(m_project->IsUnsaved("main.xml"));
    EXPECT_EQ(OnDisk(), DeviceText("new")) << "undoing writes nothing";
    EXPECT_TRUE(m_undo->Redo());
    EXPECT_TRUE(m_undo->Redo());
    EXPECT_FALSE(m_project->IsDirty()) << "it is what the files hold";
    m_undo->Undo();
    m_undo->Undo();
    EXPECT_EQ(m_project->Save("window"), Outcome::Done);
    EXPECT_EQ(OnDisk(), DeviceText("old"));
    EXPECT_EQ(ReadMain(), MainText("old"));
    EXPECT_TRUE(m_undo->Redo());
    EXPECT_TRUE(m_project->IsDirty());
}

TEST_F(UndoListTest, UndoesWhatADialogHasWrittenAtOnce)
{
    EXPECT_TRUE(DoDialog("new"));
    EXPECT_FALSE(m_project->IsDirty());
    EXPECT_TRUE(m_undo->Undo());
    EXPECT_EQ(OnDisk(), DeviceText("new"));
    EXPECT_EQ(Shown(), DeviceText("old"));
    EXPECT_TRUE(m_project->IsDirty());
    EXPECT_TRUE(m_undo->Redo());
    EXPECT_FALSE(m_project->IsDirty());
}

TEST_F(UndoListTest, BringsADocumentBackThatWasTakenOutAndSaved)
{
    DoDocument(std::nullopt);
    m_project->Save("window");
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / Document));
    m_undo->Undo();
    m_project->Save("window");
    EXPECT_EQ(OnDisk(), DeviceText("old"));
}

TEST_F(UndoListTest, KeepsTheRecoveryFileAtWhatIsShown)
{
    DoNote(L"first");
    m_undo->Undo();
    m_undo.reset();
    EXPECT_THAT(Protected(), IsEmpty());
    Reopen();
    DoNote(L"first");
    DoNote(L"second");
    m_undo->Undo();
    m_undo.reset();
    EXPECT_EQ(Protected(), (Change{{"main.xml", MainText("first")}}));
}

TEST_F(UndoListTest, TellsOfEachChangeOnce)
{
    Listener listener;
    m_project->AddListener(listener);
    DoNote(L"new");
    Do([this] {
        DoNote(L"newer");
        WriteDevice(Document, "new");
    });
    m_undo->Undo();
    m_undo->Redo();
    Do([this] {});
    ASSERT_EQ(listener.told.size(), 4u);
    for (const Told& told : listener.told) {
        EXPECT_FALSE(told.isAll || told.isListChanged);
        EXPECT_THAT(told.driverIds, ElementsAre(KZBasicString(L"zep-01")));
    }
    m_project->Save("window");
    m_project->TakeTheirs({"main.xml"});
    ASSERT_EQ(listener.told.size(), 6u);
    EXPECT_THAT(listener.told[4].driverIds, IsEmpty());
    EXPECT_TRUE(listener.told[5].isAll);
    m_project->RemoveListener(listener);
    DoNote(L"newest");
    EXPECT_EQ(listener.told.size(), 6u);
}

TEST_F(UndoListTest, IsEmptyOnceDocumentsAreReadAnew)
{
    DoNote(L"new");
    m_project->Save("window");
    DoNote(L"newer");
    m_project->TakeTheirs({"main.xml"});
    EXPECT_FALSE(m_undo->CanUndo());
    DoNote(L"newest");
    m_project->Restore(1, false);
    EXPECT_FALSE(m_undo->CanUndo());
    EXPECT_EQ(Main(), MainText("old"));
    LeaveUnsaved({{"main.xml", MainText("found")}});
    DoNote(L"new");
    RecoverAll();
    EXPECT_FALSE(m_undo->CanUndo());
    EXPECT_TRUE(m_project->IsDirty());
    DoNote(L"new");
    m_undo->Undo();
    EXPECT_EQ(Main(), MainText("found"));
    EXPECT_TRUE(m_project->IsDirty()) << "the files hold something else";
}

TEST_F(UndoListTest, IsEmptyOnceTheirsWereTakenInsideAChange)
{
    DoNote(L"new");
    m_user.answers = {Answer::TakeTheirs};
    EXPECT_EQ(Shown(), DeviceText("old"));
    m_folder.Write(Document, DeviceText("theirs"));
    EXPECT_TRUE(DoDialog("mine"));
    EXPECT_FALSE(m_undo->CanUndo());
    EXPECT_EQ(Shown(), DeviceText("theirs"));
}

TEST_F(UndoListTest, ChangesNothingThatSomebodyElseHasChangedSince)
{
    DoNote(L"new");
    ChangeMain(L"outside");
    EXPECT_FALSE(m_undo->Undo());
    EXPECT_EQ(Main(), MainText("outside"));
    EXPECT_FALSE(m_undo->CanUndo());
    DoDocument(DeviceText("new"));
    m_project->KeepUnsaved({{Document, DeviceText("outside")}}, false);
    EXPECT_FALSE(m_undo->Undo());
    EXPECT_EQ(Shown(), DeviceText("outside"));
}

TEST_F(UndoListTest, TakesBackAChangeThatThrows)
{
    DoDocument(DeviceText("first"));
    const std::string main = Main();
    const auto failing = [this] {
        ChangeMain(L"half");
        m_project->KeepUnsaved({{Document, DeviceText("half")}}, true);
        throw Refusal(IDS_PLANT_FILE_FULL);
    };
    EXPECT_EQ(Refused([&] { return Do(failing); }), IDS_PLANT_FILE_FULL);
    EXPECT_EQ(Main(), main);
    EXPECT_EQ(Shown(), DeviceText("first"));
    EXPECT_EQ(m_undo->Count(), 1u);
    EXPECT_TRUE(m_undo->Undo());
    EXPECT_EQ(Refused([&] { return Do(failing); }), IDS_PLANT_FILE_FULL);
    EXPECT_EQ(Shown(), DeviceText("old"));
    EXPECT_FALSE(m_project->IsDirty());
    EXPECT_TRUE(m_undo->Redo()) << "what was undone can still be redone";
}

TEST_F(UndoListTest, KeepsSoManySteps)
{
    m_user.willProtect = true;
    for (std::size_t step = 0; step < UndoList::MostSteps + 10; ++step)
        DoNote(std::to_wstring(step).c_str());
    EXPECT_EQ(m_undo->Count(), UndoList::MostSteps);
    while (m_undo->Undo()) {
    }
    EXPECT_EQ(Note(), L"9");
}

TEST_F(UndoListTest, KeepsSoManyBytesButNeverFewerThanTheLeastSteps)
{
    m_user.willProtect = true;
    constexpr std::size_t large = 2u << 20;
    for (char step = 'a'; step <= 'z'; ++step)
        DoDocument(DeviceText(std::string(large, step)));
    EXPECT_EQ(m_undo->Count(), UndoList::LeastSteps) << "each step holds it twice";
    EXPECT_GT(m_undo->Bytes(), UndoList::MostBytes);
    for (int step = 0; step < 40; ++step)
        DoDocument(DeviceText(std::string(large / 8, step % 2 ? 'a' : 'b')));
    EXPECT_GT(m_undo->Count(), UndoList::LeastSteps);
    EXPECT_LE(m_undo->Bytes(), UndoList::MostBytes);
    m_undo->Clear();
    EXPECT_EQ(m_undo->Bytes(), 0u);
}

TEST_F(UndoListTest, KnowsWhichDevicesDifferFromTheFiles)
{
    const DriverIds changed{L"zep-01"};
    EXPECT_THAT(m_project->ChangedDevices(), IsEmpty());
    DoDocument(DeviceText("new"));
    EXPECT_EQ(m_project->ChangedDevices(), changed);
    m_undo->Undo();
    EXPECT_THAT(m_project->ChangedDevices(), IsEmpty());
    DoNote(L"of no device");
    EXPECT_THAT(m_project->ChangedDevices(), IsEmpty());
    Do([] {
        zep::FindSetup(*KZMainCfg::Get(), {L"devices", L"device"}, L"zep-01")->SetValue(L"number", L"4");
        KZMainCfg::Get()->SetDirty(true);
    });
    DoDialog("new");
    EXPECT_EQ(m_project->ChangedDevices(), changed) << "the dialog has saved a part of it";
    m_project->Save("window");
    EXPECT_THAT(m_project->ChangedDevices(), IsEmpty());
    m_undo->Undo();
    EXPECT_EQ(m_project->ChangedDevices(), changed);
    m_undo->Redo();
    EXPECT_THAT(m_project->ChangedDevices(), IsEmpty());
}

TEST_F(UndoListTest, FindsOutWhichRecoveredDevicesDifferFromTheFiles)
{
    LeaveUnsaved({{Document, DeviceText("found")}});
    EXPECT_EQ(Shown(), DeviceText("old"));
    RecoverAll();
    EXPECT_EQ(m_project->ChangedDevices(), DriverIds{L"zep-01"});
    DoDocument(DeviceText("old"));
    EXPECT_THAT(m_project->ChangedDevices(), IsEmpty());
}

// A folder in which nobody may make or hold a file.
class DeniedDisk : public kztest::FaultyDisk {
public:
    DeniedDisk() : FaultyDisk(RealDisk()) {}
    std::unique_ptr<HeldFile> Hold(const Path& file, KZHold) override
    {
        throw Refusal(IDS_PLANT_FILE_DENIED, {plant::Shown(file), L"denied"});
    }
};

TEST_F(UndoListTest, RefusesEveryChangeOfAReadOnlyProject)
{
    DeniedDisk disk;
    m_undo.reset();
    m_project.reset();
    m_project.emplace(m_folder.Path(), disk);
    m_undo.emplace(*m_project);
    EXPECT_TRUE(m_project->IsReadOnly());
    EXPECT_EQ(Refused([this] { return DoNote(L"new"); }), IDS_PLANT_PROJECT_READ_ONLY);
    EXPECT_EQ(Main(), MainText("old"));
    m_undo.reset();
    m_project.reset();
}

TEST_F(UndoListTest, LeavesItToTheUserToProtect)
{
    EXPECT_FALSE(m_project->IsReadOnly());
    m_user.willProtect = true;
    DoNote(L"new");
    EXPECT_TRUE(m_project->IsProtectionDue());
    EXPECT_THAT(FindRecoveries(RealDisk(), m_folder.Path()).refused, IsEmpty());
    EXPECT_EQ(kztest::FilesIn(m_folder.Path()).size(), 4u);
    m_project->ProtectIfDue();
    EXPECT_FALSE(m_project->IsProtectionDue());
    EXPECT_EQ(kztest::FilesIn(m_folder.Path()).size(), 5u);
    m_undo->Undo();
    EXPECT_FALSE(m_project->IsProtectionDue());
    EXPECT_EQ(kztest::FilesIn(m_folder.Path()).size(), 4u) << "there is nothing to protect any more";
    m_undo->Redo();
    EXPECT_TRUE(m_project->IsProtectionDue());
    m_project->Discard();
    m_project->ProtectIfDue();
    EXPECT_EQ(kztest::FilesIn(m_folder.Path()).size(), 4u) << "nobody wants it";
}

}  // namespace

}  // namespace plant
