// The main window opens projects, undoes what was changed in them, and speaks another language at once.
#include <gmock/gmock.h>

#include "EditorWindowFixture.h"
#include "ModalScript.h"
#include "WorkArea.h"
#include "changes/FieldEdit.h"
#include "project/ChosenVariables.h"
#include "project/ProjectFolder.h"

namespace {

class WindowProjects : public editor_tests::OpenMainWindow {
protected:
    ~WindowProjects() override { KZMainCfg::Get()->SetDirty(false); }

    void Run(int command) const { m_window.SendMessage(WM_COMMAND, static_cast<WPARAM>(command)); }
    [[nodiscard]] std::wstring Title() const { return kztest::TextOf(m_window.m_hWnd); }
    [[nodiscard]] int Rows() const { return ListView_GetItemCount(Control(IDC_DEVICES)); }
    [[nodiscard]] std::wstring Item(int command) const
    {
        std::array<wchar_t, 128> text{};
        ::GetMenuStringW(::GetMenu(m_window.m_hWnd), static_cast<UINT>(command), text.data(),
                         static_cast<int>(text.size()), MF_BYCOMMAND);
        return text.data();
    }

    // Gives the first device other variables, as a command does.
    void Choose(const plant::VariableList& variables)
    {
        const KZBasicString driverId = m_window.Project().Devices().front().driverId;
        EXPECT_TRUE(m_window.Change({IDS_PLANT_STEP_VARIABLES, {L"TREN1"}}, {driverId},
                                    [&] { plant::StoreChosenVariables(*KZMainCfg::Get(), driverId, variables); }));
    }
    [[nodiscard]] plant::VariableList Chosen() const
    {
        return plant::ChosenVariables(*KZMainCfg::Get(), m_window.Project().Devices().front().driverId);
    }
    // How many files of unsaved changes there are.
    [[nodiscard]] std::ptrdiff_t Recoveries() const
    {
        const std::filesystem::directory_iterator files(m_copied.Path() / "plant");
        return std::count_if(begin(files), end(files),
                             [](const auto& file) { return file.path().extension() == L".kzrecovery"; });
    }
    [[nodiscard]] LRESULT ShownVariables() const { return ::SendMessageW(Control(IDC_CHOSEN), LB_GETCOUNT, 0, 0); }
};

class WithoutProject : public editor_tests::EditorWindows {
protected:
    WithoutProject() { m_settings.settings.recent = {L"Z:\\no such folder", m_project.Folder().wstring()}; }
    ~WithoutProject() override { m_window.DestroyWindow(); }

    [[nodiscard]] HWND Control(int id) const { return kztest::ControlIn(m_window.m_hWnd, id); }
    void Run(int command) const { m_window.SendMessage(WM_COMMAND, static_cast<WPARAM>(command)); }

    MainWindow m_window{m_modules, m_settings, nullptr};
};

}  // namespace

TEST_F(WindowProjects, UndoesAndRedoesWhatWasChangedAndSaysWhat)
{
    const plant::VariableList before = Chosen();
    const std::string bytes = KZMainCfg::Get()->Serialize();
    EXPECT_EQ(Item(IDC_UNDO), L"&Undo\tCtrl+Z");
    Choose({L"TREN1.HZIN"});
    EXPECT_EQ(ShownVariables(), 1);
    EXPECT_TRUE(Title().ends_with(L"*"));
    EXPECT_EQ(Item(IDC_UNDO), L"&Undo variables of TREN1\tCtrl+Z");
    Run(IDC_UNDO);
    EXPECT_EQ(Chosen(), before);
    EXPECT_EQ(ShownVariables(), static_cast<LRESULT>(before.size()));
    EXPECT_EQ(KZMainCfg::Get()->Serialize(), bytes);
    EXPECT_FALSE(Title().ends_with(L"*")) << "it is what the files hold";
    EXPECT_EQ(Item(IDC_REDO), L"&Redo variables of TREN1\tCtrl+Y");
    Run(IDC_REDO);
    EXPECT_EQ(Chosen(), plant::VariableList{L"TREN1.HZIN"});
    EXPECT_EQ(ShownVariables(), 1);
    Run(IDC_REDO);
    EXPECT_EQ(ShownVariables(), 1) << "there is nothing left to redo";
}

TEST_F(WindowProjects, SignsTheChangedDeviceAndCountsIt)
{
    const auto signs = [this] {
        std::array<wchar_t, 64> text{};
        ListView_GetItemText(Control(IDC_DEVICES), 0, 0, text.data(), static_cast<int>(text.size()));
        return std::wstring(text.data());
    };
    EXPECT_EQ(signs(), L"marked");
    Choose({L"TREN1.HZIN"});
    EXPECT_EQ(signs(), L"marked, changed");
    std::array<wchar_t, 64> part{};
    ::SendMessageW(Control(IDC_STATUS_BAR), SB_GETTEXTW, 2, reinterpret_cast<LPARAM>(part.data()));
    EXPECT_STREQ(part.data(), L"1 device changed");
    Run(IDC_UNDO);
    EXPECT_EQ(signs(), L"marked");
}

TEST_F(WindowProjects, OpensAnotherProjectInPlaceOfThisOne)
{
    plant::NewProject(m_copied.Path() / "empty");
    EXPECT_TRUE(m_window.Open(m_copied.Path() / "empty"));
    EXPECT_EQ(Title(), L"KZEditor – empty");
    EXPECT_EQ(Rows(), 0);
    EXPECT_EQ(kztest::TextOf(Control(IDC_PAGE_CAPTION)), L"Choose a device in the list.");
    EXPECT_TRUE(m_window.Open(m_copied.Path() / "plant"));
    EXPECT_EQ(Rows(), 6);
    EXPECT_EQ(m_window.RecentProjects().size(), 2U);
    EXPECT_THAT(Item(IDC_RECENT_FIRST), testing::HasSubstr(L"plant"));
    EXPECT_THAT(Item(IDC_RECENT_FIRST + 1), testing::HasSubstr(L"empty"));
    Run(IDC_RECENT_FIRST + 1);
    EXPECT_EQ(Title(), L"KZEditor – empty");
}

TEST_F(WindowProjects, KeepsTheProjectWhenTheOtherOneCannotBeOpened)
{
    std::wstring told;
    bool opened = true;
    {
        kztest::ModalScript script([&] { told = kztest::AnswerMessageBox(IDOK); });
        opened = m_window.Open(m_copied.Path() / "nowhere");
    }
    EXPECT_FALSE(opened);
    EXPECT_THAT(told, testing::HasSubstr(L"nowhere"));
    EXPECT_EQ(Rows(), 6);
    Choose({L"TREN1.HZIN"});
    EXPECT_EQ(ShownVariables(), 1) << "it works on";
}

TEST_F(WindowProjects, AsksBeforeItLeavesUnsavedChanges)
{
    plant::NewProject(m_copied.Path() / "empty");
    Choose({L"TREN1.HZIN"});
    const auto open = [this](int answer) {
        kztest::ModalScript script([answer] { kztest::AnswerMessageBox(answer); });
        return m_window.Open(m_copied.Path() / "empty");
    };
    EXPECT_FALSE(open(IDCANCEL));
    EXPECT_EQ(Rows(), 6);
    EXPECT_TRUE(open(IDNO));
    EXPECT_EQ(Rows(), 0);
    EXPECT_TRUE(m_window.Open(m_copied.Path() / "plant"));
    EXPECT_EQ(ShownVariables(), 5) << "nothing was saved";
}

TEST_F(WindowProjects, AsksHowMuchOfDevicesDocumentsIsToBeSavedBeforeItLeaves)
{
    const KZBasicString driverId = m_window.Project().Devices().front().driverId;
    EXPECT_TRUE(m_window.Change({IDS_PLANT_STEP_OPTIONS, {L"TREN1"}}, {driverId}, [&] {
        plant::FieldEdit edit(m_window.Project());
        const std::vector<plant::Assignment> values{
            {plant::FindField(*plant::FieldsOfType(L"ZEP"), "device.minCurrent"), "7"}};
        edit.Add(0, values);
        edit.Keep();
    }));
    std::wstring asked;
    {
        kztest::ModalScript script([&asked] { asked = kztest::AnswerMessageBox(IDCANCEL); });
        m_window.SendMessage(WM_CLOSE);
    }
    EXPECT_EQ(asked, FormatEditorText(IDS_ASK_SAVE_COUNTED, L"plant", 1, 1));
    EXPECT_TRUE(::IsWindow(m_window.m_hWnd));
}

TEST_F(WindowProjects, HasEachChangeInTheRecoveryFileWhenItsCommandEnds)
{
    Choose({L"TREN1.HZIN"});
    EXPECT_EQ(Recoveries(), 1);
    Run(IDC_UNDO);
    EXPECT_EQ(Recoveries(), 0) << "nothing is unsaved";
    Run(IDC_REDO);
    EXPECT_EQ(Recoveries(), 1);
    EXPECT_FALSE(m_window.Project().IsProtectionDue());
}

TEST_F(WindowProjects, SpeaksTheOtherLanguageAtOnce)
{
    Run(IDC_SHOW_OPTIONS);
    Run(IDC_SPANISH);
    EXPECT_EQ(kztest::TextOf(Control(IDC_SELECT)), L"&Seleccionar variables…");
    EXPECT_EQ(Item(IDC_SAVE), L"&Guardar\tCtrl+S");
    EXPECT_EQ(kztest::TabText(Control(IDC_PAGES), 0), L"Valores");
    EXPECT_EQ(kztest::TextOf(Control(IDC_PAGE_CAPTION)), L"TREN1");
    EXPECT_TRUE(EmbeddedIn(Control(IDC_PANE)));
    EXPECT_EQ(SettingsFile(m_copied.Path() / "settings.xml").settings.language, KZLanguage::Spanish);
    Run(IDC_ENGLISH);
    EXPECT_EQ(Item(IDC_SAVE), L"&Save\tCtrl+S");
}

TEST_F(WithoutProject, OffersTheRecentProjects)
{
    ASSERT_TRUE(m_window.Create());
    EXPECT_EQ(kztest::TextOf(m_window.m_hWnd), L"KZEditor");
    EXPECT_EQ(::SendMessageW(Control(IDC_RECENT), LB_GETCOUNT, 0, 0), 2);
    EXPECT_FALSE(::IsWindowVisible(Control(IDC_DEVICES)));
    EXPECT_TRUE(::IsWindowVisible(Control(IDC_NEW)));
    EXPECT_EQ(::GetFocus(), Control(IDC_RECENT));
    Run(IDC_FORGET_MARKED);
    EXPECT_EQ(::SendMessageW(Control(IDC_RECENT), LB_GETCOUNT, 0, 0), 1);
    m_opened.reset();
    Run(IDC_OPEN_MARKED);
    EXPECT_EQ(kztest::TextOf(m_window.m_hWnd), L"KZEditor – plant");
    EXPECT_TRUE(::IsWindowVisible(Control(IDC_DEVICES)));
    EXPECT_FALSE(::IsWindowVisible(Control(IDC_RECENT)));
}

TEST_F(WithoutProject, RemembersItsPlaceAndItsColumns)
{
    constexpr int column = 2;
    // At high resolutions the window needs more room than the tests' screen has.
    const kztest::WorkArea screen(nullptr, kztest::LargeScreenWidth, kztest::LargeScreenHeight);
    ASSERT_TRUE(m_window.Create());
    m_window.MoveWindow(40, 30, 900, 600);
    CRect kept;
    m_window.GetWindowRect(&kept);
    const int before = ListView_GetColumnWidth(Control(IDC_DEVICES), column);
    ListView_SetColumnWidth(Control(IDC_DEVICES), column, before + 60);
    m_window.SendMessage(WM_CLOSE);
    SettingsFile settings(m_copied.Path() / "settings.xml");
    MainWindow next(m_modules, settings, nullptr);
    ASSERT_TRUE(next.Create());
    CRect place;
    next.GetWindowRect(&place);
    EXPECT_EQ(place, kept);
    EXPECT_EQ(place.TopLeft(), CPoint(40, 30));
    EXPECT_NEAR(ListView_GetColumnWidth(kztest::ControlIn(next.m_hWnd, IDC_DEVICES), column), before + 60, 1);
    next.DestroyWindow();
}

TEST_F(WithoutProject, HasNoCommandThatNeedsOne)
{
    ASSERT_TRUE(m_window.Create());
    const HMENU menu = ::GetMenu(m_window.m_hWnd);
    for (const int id : {IDC_SAVE, IDC_UNDO, IDC_SELECT, IDC_OPTIONS, IDC_GO_FIND, IDC_SHOW_VALUES, IDC_MARK_ALL})
        EXPECT_NE(::GetMenuState(menu, static_cast<UINT>(id), MF_BYCOMMAND) & MF_GRAYED, 0U) << id;
    for (const int id : {IDC_NEW, IDC_OPEN, IDC_EXIT})
        EXPECT_EQ(::GetMenuState(menu, static_cast<UINT>(id), MF_BYCOMMAND) & MF_GRAYED, 0U) << id;
    m_window.SendMessage(WM_SIZE, SIZE_RESTORED, 0);
    m_window.SendMessage(WM_ACTIVATEAPP, TRUE, 0);
    kztest::DispatchPending();
}
