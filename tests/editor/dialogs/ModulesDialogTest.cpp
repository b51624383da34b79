// The list of modules and the box about the program.
#include "window/modules/ModulesDialog.h"

#include "ClipboardText.h"
#include "DialogFixture.h"
#include "text/EditorText.h"
#include "window/about/AboutControls.h"
#include "window/about/AboutDialog.h"
#include "window/modules/ModulesControls.h"

namespace {

const std::vector<ModuleRow> Rows{
    {L"KZUsrOLD.dll", L"OLD", L"", {ModuleState::CannotLoad, L"It is no program.", L"Copy it again."}, "cannot-load"},
    {L"KZUsrZEP.dll", L"ZEP", L"1.0.0.0", {ModuleState::Ready, L"", L""}, "ready"},
};

class ModulesDialogTest : public editor_tests::DialogTest {
protected:
    ModulesDialog m_dialog{nullptr, Rows};
};

class AboutDialogTest : public editor_tests::DialogTest {
protected:
    AboutDialog m_dialog{nullptr, L"1.2.3.0", L"one\t1\ntwo\t2\n"};
};

}  // namespace

TEST_F(ModulesDialogTest, SaysWhatCanBeDoneAboutTheMarkedModule)
{
    Run(m_dialog, [](HWND window) {
        EXPECT_EQ(kztest::TextOf(window, IDC_MODULES_STATE), L"It is no program.\r\nCopy it again.");
        kztest::PressKey(window, VK_DOWN);
        const std::wstring ready = FormatEditorText(IDS_MODULES_SERVES, L"KZUsrZEP.dll", L"ZEP");
        EXPECT_TRUE(kztest::WaitUntil([&] { return kztest::TextOf(window, IDC_MODULES_STATE) == ready; }));
    });
}

TEST_F(ModulesDialogTest, CopiesTheReport)
{
    Run(m_dialog, [](HWND window) {
        kztest::Click(window, IDC_MODULES_COPY);
        EXPECT_EQ(editor_tests::ClipboardText(), ModulesDialog::Report(Rows));
    });
    EXPECT_EQ(ModulesDialog::Report(Rows),
              L"KZUsrOLD.dll\tOLD\t\tcannot be loaded\tIt is no program.\tCopy it again.\r\n"
              L"KZUsrZEP.dll\tZEP\t1.0.0.0\tready\t\t\r\n");
}

TEST_F(ModulesDialogTest, CopiesTheMarkedRowByKey)
{
    Run(m_dialog, [](HWND window) {
        editor_tests::PressWithControl(window, 'C');
        EXPECT_TRUE(kztest::WaitUntil(
            [] { return editor_tests::ClipboardText() == L"KZUsrOLD.dll\tOLD\t\tcannot be loaded\r\n"; }));
    });
}

TEST_F(ModulesDialogTest, ClosesWithReturnAndWithEscape)
{
    for (const WORD key : {WORD{VK_RETURN}, WORD{VK_ESCAPE}}) {
        Run(m_dialog, [key](HWND window) {
            kztest::PressKey(window, key);
            kztest::WaitUntilGone(window);
        });
    }
}

TEST_F(AboutDialogTest, ShowsVersionAndDetailsAndCopiesThem)
{
    Run(m_dialog, [](HWND window) {
        EXPECT_EQ(kztest::TextOf(window, IDC_ABOUT_VERSION), FormatEditorText(IDS_ABOUT_VERSION, L"1.2.3.0"));
        EXPECT_EQ(kztest::TextOf(window, IDC_ABOUT_DETAILS), L"one\t1\r\ntwo\t2\r\n");
        EXPECT_TRUE(::SendDlgItemMessageW(window, IDC_ABOUT_ICON, STM_GETICON, 0, 0));
        kztest::Click(window, IDC_ABOUT_COPY);
        EXPECT_EQ(editor_tests::ClipboardText(), L"one\t1\r\ntwo\t2\r\n");
    });
}
