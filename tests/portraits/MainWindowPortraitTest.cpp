// The editor's main window, compared with its recorded portraits: the page without a project, a project, the findings.
#include "ParameterNames.h"
#include "Portrait.h"
#include "PortraitFile.h"
#include "editor/EditorWindowFixture.h"

namespace {

class MainWindowPortraits : public editor_tests::EditorWindows, public testing::WithParamInterface<KZLanguage> {
protected:
    MainWindowPortraits() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }

    // After a command, if one is given.
    void ExpectPortraitOf(const char* name, std::unique_ptr<OpenProject> project, int command = 0)
    {
        MainWindow window(m_modules, m_settings, std::move(project));
        ASSERT_TRUE(window.Create());
        if (command != 0)
            window.SendMessage(WM_COMMAND, static_cast<WPARAM>(command));
        ExpectPortrait(name, kztest::PortraitOf(window.m_hWnd));
        window.DestroyWindow();
    }
};

TEST_P(MainWindowPortraits, WithoutAProject)
{
    ExpectPortraitOf("window-start", nullptr);
}

TEST_P(MainWindowPortraits, WithAProject)
{
    ExpectPortraitOf("window-project", std::move(m_opened));
}

TEST_P(MainWindowPortraits, WithFindings)
{
    ExpectPortraitOf("window-findings", std::move(m_opened), IDC_SHOW_FINDINGS);
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowPortraits, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);

}  // namespace
