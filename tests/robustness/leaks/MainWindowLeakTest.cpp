// The editor's main window, opened, used and closed again and again, leaves nothing behind.
#include <gtest/gtest.h>

#include "Conditions.h"
#include "KZMainCfg.h"
#include "Repetition.h"
#include "TemporaryFolder.h"
#include "modules/ModuleLoader.h"
#include "project/ChosenVariables.h"
#include "window/frame/MainWindow.h"

namespace {

class RepeatedMainWindow : public testing::Test {
protected:
    RepeatedMainWindow()
    {
        std::filesystem::copy(std::filesystem::path(KZ_EXAMPLES) / "plant", m_plant,
                              std::filesystem::copy_options::recursive);
    }
    ~RepeatedMainWindow() override { AfxGetApp()->m_pMainWnd = nullptr; }

    void Use();

private:
    kztest::TemporaryFolder m_folder;
    std::filesystem::path m_plant = m_folder.Path() / "plant";
    ModuleLoader m_modules{ProgramFolder().parent_path() / "bin"};

protected:
    Repetition m_repetition;
};

void RepeatedMainWindow::Use()
{
    SettingsFile settings(m_folder.Path() / "settings.xml");
    MainWindow window(m_modules, settings, std::make_unique<OpenProject>(m_plant));
    ASSERT_TRUE(window.Create());
    const KZBasicString device = window.Project().Devices().front().driverId;
    window.Change({IDS_PLANT_STEP_VARIABLES, {device.c_str()}}, {device},
                  [&] { plant::StoreChosenVariables(*KZMainCfg::Get(), device, {KZBasicString(L"V9")}); });
    for (const int command : {IDC_SHOW_OPTIONS, IDC_SHOW_VARIABLES, IDC_UNDO, IDC_REDO, IDC_CHECK, IDC_MARK_ALL,
                              IDC_SPANISH, IDC_ENGLISH}) {
        window.SendMessage(WM_COMMAND, static_cast<WPARAM>(command));
        kztest::DispatchPending();
    }
    KZMainCfg::Get()->SetDirty(false);
    window.Project().Discard();
    window.DestroyWindow();
    kztest::DispatchPending();
    AfxGetApp()->OnIdle(0);
}

}  // namespace

TEST_F(RepeatedMainWindow, LeavesNothing)
{
    const auto round = [this] {
        Use();
        return 0L;
    };
    m_repetition.Repeat(round, 20);
}
