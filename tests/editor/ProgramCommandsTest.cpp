// The commands that tell about the program and the project's history, from the main window on.
#include "Controls.h"
#include "EditorWindowFixture.h"
#include "ListCells.h"
#include "ModalScript.h"
#include "project/ChosenVariables.h"
#include "resources/DialogTextIds.h"
#include "window/about/AboutControls.h"
#include "window/history/HistoryControls.h"
#include "window/modules/ModulesControls.h"

namespace {

class ProgramCommandsTest : public editor_tests::OpenMainWindow {
protected:
    // Runs a command and works the dialog that it opens.
    void Run(int command, const std::function<void(HWND dialog)>& script)
    {
        kztest::ModalScript modal([&] {
            const HWND dialog = kztest::WaitForDialog({m_window.m_hWnd});
            ::SendMessageW(dialog, WM_NULL, 0, 0);
            script(dialog);
            if (::IsWindow(dialog))
                kztest::PostClick(dialog, IDCANCEL);
        });
        m_window.SendMessage(WM_COMMAND, static_cast<WPARAM>(command));
    }

    [[nodiscard]] const KZBasicString& FirstDriver() const { return m_project.Devices().front().driverId; }
    [[nodiscard]] plant::VariableList Chosen() const
    {
        return plant::ChosenVariables(*KZMainCfg::Get(), FirstDriver());
    }
};

}  // namespace

TEST_F(ProgramCommandsTest, ModulesShowsTheModuleThatIsLoaded)
{
    Run(IDC_MODULES, [](HWND dialog) {
        EXPECT_EQ(editor_tests::CellOf(::GetDlgItem(dialog, IDC_MODULES_LIST), 0, 0), L"KZUsrZEP.dll");
    });
}

TEST_F(ProgramCommandsTest, AboutShowsWhatDiagnoseTells)
{
    Run(IDC_ABOUT, [](HWND dialog) {
        EXPECT_NE(kztest::TextOf(dialog, IDC_ABOUT_DETAILS).find(L"KZUsrZEP.dll"), std::wstring::npos);
    });
}

TEST_F(ProgramCommandsTest, HistoryBringsBackWhatWasBeforeASave)
{
    const plant::VariableList before = Chosen();
    plant::StoreChosenVariables(*KZMainCfg::Get(), FirstDriver(), {});
    m_project.Save("window");
    ASSERT_NE(Chosen(), before);
    Run(IDC_HISTORY, [](HWND dialog) {
        EXPECT_EQ(kztest::TextOf(dialog, IDC_HISTORY_DOCUMENTS), L"main.xml\r\n");
        kztest::PostClick(dialog, IDOK);
        kztest::AnswerMessageBox(FormatEditorText(IDS_HISTORY_CONFIRM, 1, 1, L"main.xml"), IDNO);
        EXPECT_TRUE(::IsWindow(dialog));
        kztest::PostClick(dialog, IDOK);
        kztest::AnswerMessageBox(IDYES);
        kztest::WaitUntilGone(dialog);
    });
    EXPECT_EQ(Chosen(), before);
    EXPECT_FALSE(m_project.IsDirty());
}

TEST_F(ProgramCommandsTest, HistoryShowsThatNothingWasSaved)
{
    Run(IDC_HISTORY, [](HWND dialog) { EXPECT_FALSE(kztest::IsEnabled(dialog, IDOK)); });
}
