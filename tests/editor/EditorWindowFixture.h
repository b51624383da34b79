// The editor's windows in the test's own process, on the example plant with the real module.
#pragma once

#include <afxwin.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "Conditions.h"
#include "Controls.h"
#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"
#include "TemporaryFolder.h"
#include "modules/ModuleLoader.h"
#include "resources/EditorIds.h"
#include "text/EditorText.h"
#include "window/frame/MainWindow.h"

namespace editor_tests {

class EditorWindows : public testing::Test {
protected:
    ~EditorWindows() override
    {
        KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
        AfxGetApp()->m_pMainWnd = nullptr;
        MSG quit;  // the end of either window asks the program to end
        ::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    }

    // A control's place in its parent.
    [[nodiscard]] static CRect PlaceOf(HWND control)
    {
        CRect place;
        ::GetWindowRect(control, &place);
        ::MapWindowPoints(nullptr, ::GetParent(control), reinterpret_cast<POINT*>(static_cast<RECT*>(&place)), 2);
        return place;
    }
    [[nodiscard]] static CRect ClientOf(HWND window)
    {
        CRect client;
        ::GetClientRect(window, &client);
        return client;
    }
    // The options dialog that a pane embeds; null when it shows a text.
    [[nodiscard]] static HWND EmbeddedIn(HWND pane) { return ::FindWindowExW(pane, nullptr, L"#32770", nullptr); }

    // Both icons of a window, in the sizes that the system wants for them.
    static void ExpectProgramIcon(HWND window)
    {
        const struct {
            WPARAM kind;
            int metric;
        } icons[] = {{ICON_BIG, SM_CXICON}, {ICON_SMALL, SM_CXSMICON}};
        for (const auto& [kind, metric] : icons) {
            ICONINFO icon{};
            ASSERT_TRUE(::GetIconInfo(reinterpret_cast<HICON>(::SendMessageW(window, WM_GETICON, kind, 0)), &icon));
            BITMAP picture{};
            ::GetObjectW(icon.hbmColor, sizeof picture, &picture);
            EXPECT_EQ(picture.bmWidth, ::GetSystemMetrics(metric));
            ::DeleteObject(icon.hbmColor);
            ::DeleteObject(icon.hbmMask);
        }
    }

    // A copy, since a project that is changed leaves its unsaved changes beside it.
    [[nodiscard]] std::filesystem::path CopyOfThePlant() const
    {
        std::filesystem::copy(std::filesystem::path(KZ_EXAMPLES) / "plant", m_copied.Path() / "plant",
                              std::filesystem::copy_options::recursive);
        return m_copied.Path() / "plant";
    }

    kztest::TemporaryFolder m_copied;
    std::unique_ptr<OpenProject> m_opened = std::make_unique<OpenProject>(CopyOfThePlant());
    plant::Project& m_project = m_opened->project;
    SettingsFile m_settings{m_copied.Path() / "settings.xml"};
    ModuleLoader m_modules{ProgramFolder().parent_path() / "bin"};
};

class OpenMainWindow : public EditorWindows {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_window.Create());
        for (const KZDeviceIdentity& device : m_project.Devices())
            ASSERT_NE(m_modules.CallbacksOf(device.typeName), nullptr);
    }
    ~OpenMainWindow() override { m_window.DestroyWindow(); }

    [[nodiscard]] HWND Control(int id) const { return kztest::ControlIn(m_window.m_hWnd, id); }

    void ChooseDevice(int row)
    {
        ListView_SetItemState(Control(IDC_DEVICES), -1, 0, LVIS_SELECTED);
        ListView_SetItemState(Control(IDC_DEVICES), row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        const std::wstring& name = m_project.Devices()[static_cast<std::size_t>(row)].name.c_str();
        ASSERT_NE(kztest::TextOf(Control(IDC_PAGE_CAPTION)).find(name), std::wstring::npos);
    }

    template <typename Check>
    void ForEachDevice(Check check)
    {
        for (int row = 0; row < static_cast<int>(m_project.Devices().size()); ++row) {
            SCOPED_TRACE(row);
            ChooseDevice(row);
            check();
        }
    }

    MainWindow m_window{m_modules, m_settings, std::move(m_opened)};
};

}  // namespace editor_tests
