// What a project does about documents that other programs have changed since it has read them.
#include <gmock/gmock.h>

#include "ProjectFixture.h"
#include "project/Commit.h"

namespace plant {

namespace {

using kztest::DeviceText;
using kztest::Files;
using kztest::MainText;
using kztest::RefusalOf;
using testing::ElementsAre;
using testing::IsEmpty;

class ForeignChangesTest : public kztest::ProjectFixture {
protected:
    // Both have changed the main document.
    void OpenAndCollide()
    {
        Open();
        ChangeMain(L"mine");
        m_folder.Write("main.xml", MainText("theirs"));
    }
    Outcome SaveAnswering(std::initializer_list<Answer> answers)
    {
        m_user.answers = answers;
        const Outcome outcome = m_project->Save("window");
        EXPECT_THAT(m_user.answers, IsEmpty()) << "a question that was not asked";
        return outcome;
    }
    Names ForeignNames()
    {
        Names names;
        for (const auto& [name, hash] : m_project->FindForeignChanges())
            names.push_back(name);
        return names;
    }
    unsigned RefusedSave()
    {
        return RefusalOf([this] { return m_project->Save("window"); }).text;
    }
};

TEST_F(ForeignChangesTest, AreNoticed)
{
    Open();
    NoteOf("devices/a.xml");
    EXPECT_THAT(ForeignNames(), IsEmpty());
    m_folder.Write("main.xml", MainText("theirs"));
    m_folder.Write("devices/a.xml", DeviceText("theirs"));
    m_folder.Write("devices/b.xml", DeviceText("nobody has read it"));
    EXPECT_THAT(ForeignNames(), ElementsAre("devices/a.xml", "main.xml"));
    m_project->TakeTheirs({"main.xml"});
    EXPECT_EQ(Note(), L"theirs");
    EXPECT_THAT(ForeignNames(), ElementsAre("devices/a.xml"));
    NoteOf("devices/a.xml");
    EXPECT_THAT(ForeignNames(), IsEmpty());
}

TEST_F(ForeignChangesTest, AreNotWhatThisProcessHasWritten)
{
    Open();
    NoteOf("devices/a.xml");
    WriteDevice("devices/a.xml", "mine");
    ChangeMain(L"mine");
    m_project->Save("window");
    EXPECT_THAT(ForeignNames(), IsEmpty());
    m_project->Restore(1, false);
    EXPECT_THAT(ForeignNames(), IsEmpty());
    ChangeMain(L"mine again");
    EXPECT_EQ(m_project->Save("window"), Outcome::Done);
    EXPECT_EQ(WriteDevice("devices/a.xml", "mine again"), Outcome::Done);
}

TEST_F(ForeignChangesTest, AreOverwrittenWhenTheUserSaysSo)
{
    OpenAndCollide();
    EXPECT_EQ(SaveAnswering({Answer::Overwrite}), Outcome::Done);
    EXPECT_THAT(m_user.asked, ElementsAre(Names{"main.xml"}));
    EXPECT_EQ(ReadMain(), MainText("mine"));
    EXPECT_FALSE(m_project->IsDirty());
    // What was overwritten can be brought back.
    m_project->Restore(1, false);
    EXPECT_EQ(ReadMain(), MainText("theirs"));
}

TEST_F(ForeignChangesTest, AreTakenWhenTheUserSaysSo)
{
    OpenAndCollide();
    EXPECT_EQ(SaveAnswering({Answer::TakeTheirs}), Outcome::TookTheirs);
    EXPECT_EQ(ReadMain(), MainText("theirs"));
    EXPECT_EQ(Note(), L"theirs");
    EXPECT_FALSE(m_project->IsDirty());
    EXPECT_EQ(CountEntries(), 0U);
    EXPECT_THAT(Protected(), IsEmpty());
}

TEST_F(ForeignChangesTest, LeaveAllAsItIsWhenTheUserCancels)
{
    OpenAndCollide();
    EXPECT_EQ(SaveAnswering({Answer::Cancel}), Outcome::Cancelled);
    EXPECT_EQ(ReadMain(), MainText("theirs"));
    EXPECT_EQ(Note(), L"mine");
    EXPECT_TRUE(m_project->IsDirty());
    EXPECT_EQ(SaveAnswering({Answer::Overwrite}), Outcome::Done) << "the next save asks again";
    EXPECT_EQ(ReadMain(), MainText("mine"));
}

TEST_F(ForeignChangesTest, AreRefusedWithoutAUser)
{
    OpenAndCollide();
    m_project->SetUser(nullptr);
    EXPECT_EQ(RefusedSave(), IDS_PLANT_FOREIGN_CHANGES);
    EXPECT_EQ(ReadMain(), MainText("theirs"));
    EXPECT_TRUE(m_project->IsDirty());
    EXPECT_EQ(Protected(), (Change{{"main.xml", MainText("mine")}}));
}

TEST_F(ForeignChangesTest, AreNoneWhenTheyAreTheSameAsMine)
{
    OpenAndCollide();
    m_folder.Write("main.xml", MainText("mine"));
    EXPECT_EQ(SaveAnswering({}), Outcome::Done);
    EXPECT_FALSE(m_project->IsDirty());
    EXPECT_EQ(CountEntries(), 0U);
}

TEST_F(ForeignChangesTest, AreTakenOfOneDocumentWhileTheRestIsWritten)
{
    LeaveUnsaved({{"main.xml", MainText("mine")},
                  {"devices/a.xml", DeviceText("mine")},
                  {"devices/b.xml", DeviceText("old b")}});
    Open();
    RecoverAll();
    m_folder.Write("main.xml", MainText("theirs"));
    EXPECT_EQ(SaveAnswering({Answer::TakeTheirs}), Outcome::TookTheirs);
    EXPECT_EQ(Documents(), (Files{{"main.xml", MainText("theirs")},
                                  {"devices/a.xml", DeviceText("mine")},
                                  {"devices/b.xml", DeviceText("old b")}}));
    EXPECT_EQ(Note(), L"theirs");
    EXPECT_FALSE(m_project->IsDirty());
}

TEST_F(ForeignChangesTest, AreAskedAboutAgainWhenTheyGoOnWhileTheUserThinks)
{
    OpenAndCollide();
    m_user.whileAsked = [this] {
        m_folder.Write("main.xml", MainText("theirs " + std::to_string(m_user.asked.size())));
    };
    EXPECT_EQ(SaveAnswering({Answer::Overwrite, Answer::Cancel}), Outcome::Cancelled);
    EXPECT_EQ(ReadMain(), MainText("theirs 2"));
    EXPECT_EQ(SaveAnswering({Answer::TakeTheirs}), Outcome::TookTheirs);
    EXPECT_EQ(Note(), L"theirs 3");
}

// The lock is free meanwhile.
TEST_F(ForeignChangesTest, DoNotKeepOthersFromSavingWhileTheUserThinks)
{
    OpenAndCollide();
    m_user.whileAsked = [this] { ProjectLock(RealDisk(), m_folder.Path(), 0); };
    EXPECT_EQ(SaveAnswering({Answer::Overwrite}), Outcome::Done);
}

TEST_F(ForeignChangesTest, ThatAreBeingSavedLetTheUserKnowThatASaveWaits)
{
    LeaveUnsaved({{"main.xml", MainText("mine")}});
    Open();
    RecoverAll();
    std::optional<ProjectLock> theirs(std::in_place, RealDisk(), m_folder.Path());
    m_user.whileWaiting = [&] { theirs.reset(); };
    EXPECT_EQ(SaveAnswering({}), Outcome::Done);
    EXPECT_EQ(m_user.waits, (std::vector<bool>{true, false}));
    EXPECT_EQ(ReadMain(), MainText("mine"));
}

TEST_F(ForeignChangesTest, ThatAreTakenComeTogetherWithTheRestOrNotAtAll)
{
    LeaveUnsaved({{"main.xml", MainText("mine")}, {"devices/a.xml", DeviceText("mine")}});
    Open();
    RecoverAll();
    m_folder.Write("main.xml", MainText("theirs"));
    m_user.whileAsked = [this] {
        m_folder.Write("devices/a.xml", DeviceText("theirs " + std::to_string(m_user.asked.size())));
    };
    EXPECT_EQ(SaveAnswering({Answer::TakeTheirs, Answer::Cancel}), Outcome::Cancelled);
    EXPECT_THAT(m_user.asked, ElementsAre(Names{"main.xml"}, Names{"devices/a.xml"}));
    EXPECT_EQ(Note(), L"mine");
    m_user.whileAsked = [] {};
    EXPECT_EQ(SaveAnswering({Answer::TakeTheirs}), Outcome::TookTheirs);
    EXPECT_EQ(Note(), L"theirs");
    EXPECT_EQ(NoteOf("devices/a.xml"), L"theirs 2");
    EXPECT_FALSE(m_project->IsDirty());
}

TEST_F(ForeignChangesTest, ThatAreBrokenAreNotTaken)
{
    OpenAndCollide();
    for (const char* broken : {"<configuration>", "<configuration><devices><device/></devices></configuration>"}) {
        m_folder.Write("main.xml", broken);
        EXPECT_NE(RefusalOf([this] { return m_project->TakeTheirs({"main.xml"}), 0; }).text, 0U);
        m_user.answers = {Answer::TakeTheirs};
        EXPECT_NE(RefusedSave(), 0U);
        EXPECT_EQ(Note(), L"mine");
        EXPECT_TRUE(m_project->IsDirty());
        EXPECT_EQ(SaveAnswering({Answer::Cancel}), Outcome::Cancelled) << "it is still foreign";
    }
    EXPECT_EQ(SaveAnswering({Answer::Overwrite}), Outcome::Done);
    EXPECT_EQ(ReadMain(), MainText("mine"));
}

TEST_F(ForeignChangesTest, OfABrokenDeviceDocumentAreNotOverwrittenSilently)
{
    Open();
    NoteOf("devices/a.xml");
    m_folder.Write("devices/a.xml", "<device>");
    EXPECT_EQ(RefusalOf([this] { return NoteOf("devices/a.xml"); }).text, IDS_PLANT_BROKEN_DOCUMENT);
    EXPECT_EQ(RefusalOf([this] { return m_project->TakeTheirs({"devices/a.xml"}), 0; }).text,
              IDS_PLANT_BROKEN_DOCUMENT);
    m_user.answers = {Answer::Overwrite};
    EXPECT_EQ(WriteDevice("devices/a.xml", "mine"), Outcome::Done);
    EXPECT_EQ(m_user.asked.size(), 1U);
}

TEST_F(ForeignChangesTest, CanBeThatADocumentIsGone)
{
    OpenAndCollide();
    NoteOf("devices/a.xml");
    std::filesystem::remove(m_folder.Path() / "main.xml");
    std::filesystem::remove(m_folder.Path() / "devices" / "a.xml");
    EXPECT_THAT(ForeignNames(), ElementsAre("devices/a.xml", "main.xml"));
    m_user.answers = {Answer::TakeTheirs};
    EXPECT_EQ(RefusedSave(), IDS_PLANT_NO_MAIN);
    EXPECT_TRUE(m_project->IsDirty());
    EXPECT_EQ(SaveAnswering({Answer::Overwrite}), Outcome::Done);
    EXPECT_EQ(ReadMain(), MainText("mine"));
    m_user.answers = {Answer::TakeTheirs};
    EXPECT_EQ(WriteDevice("devices/a.xml", "mine"), Outcome::TookTheirs);
    EXPECT_EQ(NoteOf("devices/a.xml"), L"none");
    EXPECT_EQ(WriteDevice("devices/a.xml", "mine"), Outcome::Done);
}

TEST_F(ForeignChangesTest, IncludeWhatNobodyHereHasRead)
{
    Open();
    m_user.answers = {Answer::Cancel};
    EXPECT_EQ(WriteDevice("devices/a.xml", "mine"), Outcome::Cancelled);
    EXPECT_THAT(m_user.asked, ElementsAre(Names{"devices/a.xml"}));
}

// A dialog has the document open, and the list beside it is drawn again.
TEST_F(ForeignChangesTest, AreAskedAboutThoughSomebodyElseInTheProcessHasSeenThem)
{
    Open();
    NoteOf("devices/a.xml");
    m_folder.Write("devices/a.xml", DeviceText("theirs"));
    XmlDocument shown(L"device");
    m_project->ReadDeviceToShow("devices/a.xml", shown);
    EXPECT_STREQ(shown.Root()->Value(L"note", L""), L"theirs");
    EXPECT_THAT(ForeignNames(), ElementsAre("devices/a.xml"));
    m_user.answers = {Answer::Cancel};
    EXPECT_EQ(WriteDevice("devices/a.xml", "mine"), Outcome::Cancelled);
}

TEST_F(ForeignChangesTest, AreNoticedInWhatIsOnlyShown)
{
    Open();
    XmlDocument shown(L"device");
    m_project->ReadDeviceToShow("devices/a.xml", shown);
    EXPECT_THAT(ForeignNames(), IsEmpty());
    m_folder.Write("devices/a.xml", DeviceText("theirs"));
    EXPECT_THAT(ForeignNames(), ElementsAre("devices/a.xml"));
}

TEST_F(ForeignChangesTest, StayForeignWhenTheSaveOverThemFails)
{
    OpenAndCollide();
    m_folder.Write("history", "no folder");
    m_user.answers = {Answer::Overwrite};
    EXPECT_EQ(RefusedSave(), IDS_PLANT_NOT_A_FOLDER);
    EXPECT_TRUE(m_project->IsDirty());
    std::filesystem::remove(m_folder.Path() / "history");
    EXPECT_THAT(ForeignNames(), ElementsAre("main.xml"));
    EXPECT_EQ(SaveAnswering({Answer::Overwrite}), Outcome::Done);
}

class ForeignSinceRecovery : public ForeignChangesTest {
protected:
    ForeignSinceRecovery()
    {
        LeaveUnsaved({{"main.xml", MainText("found")}, {"devices/a.xml", DeviceText("found")}});
        m_folder.Write("main.xml", MainText("theirs"));
        Open();
        m_recoveries = m_project->FindUnsaved();
    }
    ~ForeignSinceRecovery() override { m_recoveries.found.clear(); }

    Recoveries m_recoveries;
};

TEST_F(ForeignSinceRecovery, IsToldOnceAndThenNoQuestion)
{
    EXPECT_THAT(m_project->ChangedSince(m_recoveries.found.at(0)), ElementsAre("main.xml"));
    m_project->Recover(m_recoveries.found[0]);
    EXPECT_THAT(ForeignNames(), IsEmpty());
    EXPECT_EQ(SaveAnswering({}), Outcome::Done);
    EXPECT_EQ(ReadMain(), MainText("found"));
}

TEST_F(ForeignSinceRecovery, IsAskedAboutWhenNobodyWasTold)
{
    m_project->Recover(m_recoveries.found.at(0));
    EXPECT_EQ(SaveAnswering({Answer::Cancel}), Outcome::Cancelled);
    EXPECT_THAT(m_user.asked, ElementsAre(Names{"main.xml"}));
}

TEST_F(ForeignSinceRecovery, IsAskedAboutWhenItCameWhileTheUserReadTheOffer)
{
    EXPECT_THAT(m_project->ChangedSince(m_recoveries.found.at(0)), ElementsAre("main.xml"));
    m_folder.Write("devices/a.xml", DeviceText("theirs"));
    m_project->Recover(m_recoveries.found[0]);
    EXPECT_EQ(SaveAnswering({Answer::Cancel}), Outcome::Cancelled);
    EXPECT_THAT(m_user.asked, ElementsAre(Names{"devices/a.xml"}));
}

TEST_F(ForeignSinceRecovery, IsNoneWhenTheUserDeclines)
{
    EXPECT_THAT(m_project->ChangedSince(m_recoveries.found.at(0)), ElementsAre("main.xml"));
    m_folder.Write("main.xml", MainText("theirs again"));
    plant::Discard(m_recoveries.found[0]);
    ChangeMain(L"mine");
    EXPECT_EQ(SaveAnswering({Answer::Cancel}), Outcome::Cancelled);
}

}  // namespace

}  // namespace plant
