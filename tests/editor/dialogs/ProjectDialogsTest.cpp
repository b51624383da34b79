// The dialogs about the project's folder and its history.
#include "DialogFixture.h"
#include "ListCells.h"
#include "TemporaryFolder.h"
#include "project/ProjectFolder.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"
#include "window/history/HistoryControls.h"
#include "window/history/HistoryDialog.h"
#include "window/open/ProjectFolderControls.h"
#include "window/open/ProjectFolderDialog.h"

namespace {

using editor_tests::CellOf;

const plant::Message Refused{IDS_PLANT_NO_FOLDER, {L"C:\\nowhere"}};

class ProjectFolderDialogTest : public editor_tests::DialogTest {
protected:
    static void Judge(const plant::Path& folder)
    {
        if (folder.filename() == L"nowhere")
            throw plant::Refusal(Refused);
    }

    const std::vector<std::wstring> m_recent{L"C:\\Plants\\Sagunto", L"C:\\Plants\\nowhere"};
};

class HistoryDialogTest : public editor_tests::DialogTest {
protected:
    std::vector<int> m_asked;
    bool m_bAnswer = true;
    HistoryDialog m_dialog{nullptr,
                           {{12, L"today", L"window", {L"main.xml", L"devices/zep-01.xml (TREN1)"}},
                            {11, L"yesterday", L"import", {L"devices/zep-02.xml (CPD)"}}},
                           [this](int number) {
                               m_asked.push_back(number);
                               return m_bAnswer;
                           }};
};

}  // namespace

TEST_F(ProjectFolderDialogTest, OpensWhatIsTyped)
{
    ProjectFolderDialog dialog(nullptr, FolderPurpose::Open, m_recent, Judge);
    EXPECT_EQ(Run(dialog,
                  [](HWND window) {
                      EXPECT_EQ(kztest::FocusedId(window), IDC_FOLDER_PATH);
                      kztest::SetText(window, IDC_FOLDER_PATH, L" C:\\Plants\\Almussafes ");
                      kztest::Click(window, IDOK);
                  }),
              IDOK);
    EXPECT_EQ(dialog.Folder(), L"C:\\Plants\\Almussafes");
}

TEST_F(ProjectFolderDialogTest, SaysWhatIsRefusedAndStays)
{
    ProjectFolderDialog dialog(nullptr, FolderPurpose::Open, m_recent, Judge);
    EXPECT_EQ(Run(dialog,
                  [](HWND window) {
                      kztest::PostClick(window, IDOK);
                      kztest::AnswerMessageBox(EditorText(IDS_FOLDER_EMPTY), IDOK);
                      kztest::SetText(window, IDC_FOLDER_PATH, L"C:\\nowhere");
                      kztest::PostClick(window, IDOK);
                      kztest::AnswerMessageBox(PlantMessage(Refused), IDOK);
                      EXPECT_TRUE(kztest::WaitUntil([&] { return kztest::FocusedId(window) == IDC_FOLDER_PATH; }));
                      kztest::Click(window, IDCANCEL);
                  }),
              IDCANCEL);
}

TEST_F(ProjectFolderDialogTest, TakesAFolderOutOfTheSystemsDialogOrLeavesWhatWasTyped)
{
    const kztest::TemporaryFolder folder;
    std::filesystem::create_directory(folder.Path() / "chosen");
    for (const FolderPurpose purpose : {FolderPurpose::Open, FolderPurpose::New, FolderPurpose::Copy}) {
        ProjectFolderDialog dialog(nullptr, purpose, {}, Judge);
        EXPECT_EQ(Run(dialog,
                      [&](HWND window) {
                          const std::wstring typed = (folder.Path() / "typed").wstring();
                          const std::wstring chosen = (folder.Path() / "chosen").wstring();
                          kztest::SetText(window, IDC_FOLDER_PATH, typed);
                          kztest::PostClick(window, IDC_FOLDER_BROWSE);
                          HWND browser = kztest::WaitForDialog({window});
                          kztest::PostClick(browser, IDCANCEL);
                          kztest::WaitUntilGone(browser);
                          EXPECT_EQ(kztest::TextOf(window, IDC_FOLDER_PATH), typed);
                          kztest::PostClick(window, IDC_FOLDER_BROWSE);
                          browser = kztest::WaitForDialog({window});
                          constexpr int folderName = 0x480;  // edt1 of the system's dialog
                          ::SetWindowTextW(kztest::ControlIn(browser, folderName), chosen.c_str());
                          kztest::PostClick(browser, IDOK);
                          kztest::WaitUntilGone(browser);
                          EXPECT_TRUE(
                              kztest::WaitUntil([&] { return kztest::TextOf(window, IDC_FOLDER_PATH) == chosen; }));
                          kztest::Click(window, IDOK);
                      }),
                  IDOK);
        EXPECT_EQ(dialog.Folder(), folder.Path() / "chosen");
    }
}

TEST_F(ProjectFolderDialogTest, TakesARecentProjectByTheKeyboard)
{
    ProjectFolderDialog dialog(nullptr, FolderPurpose::Open, m_recent, Judge);
    EXPECT_EQ(Run(dialog,
                  [](HWND window) {
                      const HWND list = ::GetDlgItem(window, IDC_FOLDER_RECENT);
                      EXPECT_EQ(CellOf(list, 0, 0), L"Sagunto");
                      EXPECT_EQ(CellOf(list, 1, 1), L"C:\\Plants\\nowhere");
                      kztest::PressKey(window, VK_TAB);
                      kztest::PressKey(window, VK_TAB);
                      ASSERT_TRUE(kztest::WaitUntil([&] { return kztest::FocusedWindow(window) == list; }));
                      ASSERT_TRUE(kztest::WaitUntil(
                          [&] { return kztest::TextOf(window, IDC_FOLDER_PATH) == L"C:\\Plants\\Sagunto"; }));
                      kztest::PressKey(window, VK_RETURN);
                      kztest::WaitUntilGone(window);
                  }),
              IDOK);
    EXPECT_EQ(dialog.Folder(), L"C:\\Plants\\Sagunto");
}

// By the rules of the plant: a folder with a project is nothing for a new one.
TEST_F(ProjectFolderDialogTest, MakesAProjectWhereThereIsNone)
{
    const kztest::TemporaryFolder folder;
    plant::NewProject(folder.Path() / "there");
    ProjectFolderDialog dialog(nullptr, FolderPurpose::New, {},
                               [](const plant::Path& place) { plant::NewProject(place); });
    EXPECT_EQ(Run(dialog,
                  [&](HWND window) {
                      EXPECT_EQ(::GetDlgItem(window, IDC_FOLDER_RECENT), nullptr);
                      kztest::SetText(window, IDC_FOLDER_PATH, (folder.Path() / "there").wstring());
                      kztest::PostClick(window, IDOK);
                      kztest::AnswerMessageBox(IDOK);
                      kztest::SetText(window, IDC_FOLDER_PATH, (folder.Path() / "new").wstring());
                      kztest::Click(window, IDOK);
                  }),
              IDOK);
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "new" / "main.xml"));
}

TEST_F(HistoryDialogTest, ShowsWhatEachSaveChanged)
{
    Run(m_dialog, [](HWND window) {
        const HWND list = ::GetDlgItem(window, IDC_HISTORY_SAVES);
        EXPECT_EQ(CellOf(list, 0, 0), L"12");
        EXPECT_EQ(CellOf(list, 0, 3), L"2");
        EXPECT_EQ(CellOf(list, 1, 2), L"import");
        EXPECT_EQ(kztest::TextOf(window, IDC_HISTORY_DOCUMENTS), L"main.xml\r\ndevices/zep-01.xml (TREN1)\r\n");
        kztest::PressKey(window, VK_DOWN);
        EXPECT_TRUE(kztest::WaitUntil(
            [&] { return kztest::TextOf(window, IDC_HISTORY_DOCUMENTS) == L"devices/zep-02.xml (CPD)\r\n"; }));
    });
}

TEST_F(HistoryDialogTest, GivesTheMarkedSaveOnceItIsConfirmed)
{
    EXPECT_EQ(Run(m_dialog,
                  [this](HWND window) {
                      m_bAnswer = false;
                      kztest::Click(window, IDOK);
                      EXPECT_TRUE(::IsWindow(window));
                      ListView_SetItemState(::GetDlgItem(window, IDC_HISTORY_SAVES), 1, LVIS_SELECTED, LVIS_SELECTED);
                      EXPECT_TRUE(kztest::WaitUntil([&] {
                          return kztest::TextOf(window, IDC_HISTORY_DOCUMENTS) == L"devices/zep-02.xml (CPD)\r\n";
                      }));
                      m_bAnswer = true;
                      kztest::Click(window, IDOK);
                  }),
              IDOK);
    EXPECT_EQ(m_dialog.Number(), 11);
    EXPECT_EQ(m_asked, (std::vector<int>{12, 11}));
}

TEST_F(HistoryDialogTest, HasNothingToRestoreBeforeTheFirstSave)
{
    HistoryDialog dialog(nullptr, {}, [](int) { return true; });
    Run(dialog, [](HWND window) { EXPECT_FALSE(kztest::IsEnabled(window, IDOK)); });
}
