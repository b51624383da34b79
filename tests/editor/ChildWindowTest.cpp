// The window around one device's options, worked from a second thread while it is open.
#include <gmock/gmock.h>

#include <functional>

#include "EditorWindowFixture.h"
#include "KZDlgOptions.h"
#include "ModalScript.h"
#include "modules/DeviceType.h"
#include "window/options/ChildWindow.h"

namespace {

class ChildWindowTest : public editor_tests::EditorWindows {
protected:
    [[nodiscard]] const KZDeviceIdentity& FirstDevice() const { return m_project.Devices().front(); }

    // Opens the window, runs the script, and closes the window if the script has left it open.
    bool Run(const std::function<void(HWND window)>& script)
    {
        kztest::ModalScript modal([&] {
            const HWND window = kztest::WaitForDialog();
            ::SendMessageW(window, WM_NULL, 0, 0);  // it has come to its loop
            script(window);
            ::PostMessageW(window, WM_CLOSE, 0, 0);
        });
        return ShowChildWindow(m_driver.get(), m_modules.CallbacksOf(FirstDevice().typeName)->createChildOptions);
    }

    [[nodiscard]] static HWND PaneOf(HWND window) { return ::GetWindow(window, GW_CHILD); }

    const std::unique_ptr<KZDriverDevice> m_driver = MakeDriver(FirstDevice());
};

CDialog* NoDialog(CWnd*, KZDriver*)
{
    return nullptr;
}

}  // namespace

TEST_F(ChildWindowTest, HasTheDevicesNameAndTheProgramsIcon)
{
    Run([this](HWND window) {
        EXPECT_THAT(kztest::TextOf(window), testing::HasSubstr(FirstDevice().name.c_str()));
        ExpectProgramIcon(window);
    });
}

TEST_F(ChildWindowTest, OpensWithTheFocusOnTheFirstSection)
{
    Run([](HWND window) {
        EXPECT_TRUE(kztest::WaitUntil([&] { return kztest::FocusedId(window) == KZSectionButtonBase; }))
            << kztest::FocusedId(window);
    });
}

TEST_F(ChildWindowTest, FillsItselfWithTheOptionsAtEverySize)
{
    Run([](HWND window) {
        for (const int size : {400, 900}) {
            ::SetWindowPos(window, nullptr, 0, 0, size, size, SWP_NOZORDER);
            EXPECT_EQ(PlaceOf(PaneOf(window)), ClientOf(window));
            EXPECT_EQ(PlaceOf(EmbeddedIn(PaneOf(window))), ClientOf(PaneOf(window)));
        }
    });
}

TEST_F(ChildWindowTest, PassesReturnOnASectionToTheOptions)
{
    Run([](HWND window) {
        const HWND options = EmbeddedIn(PaneOf(window));
        ASSERT_TRUE(kztest::WaitUntil([&] { return kztest::FocusedId(window) == KZSectionButtonBase; }));
        for (int section = KZSectionDriver; section < KZSectionUnits; ++section)
            kztest::PressKey(window, VK_TAB);
        const HWND units = ::GetDlgItem(options, KZSectionButtonBase + KZSectionUnits);
        ASSERT_TRUE(kztest::WaitUntil([&] { return kztest::FocusedWindow(window) == units; }));
        kztest::PressKey(window, VK_RETURN);
        const HWND dialog = kztest::WaitForDialog({window});
        kztest::PostClick(dialog, IDCANCEL);
        kztest::WaitUntilGone(dialog);
    });
}

TEST_F(ChildWindowTest, ClosesWithEscapeAndStaysOnOk)
{
    EXPECT_TRUE(Run([](HWND window) {
        ::SendMessageW(window, WM_COMMAND, IDOK, 0);
        EXPECT_TRUE(::IsWindow(window));
        kztest::PressKey(window, VK_ESCAPE);
        kztest::WaitUntilGone(window);
    }));
}

TEST_F(ChildWindowTest, AnswersFalseAndSaysWhyWhenThereIsNoDialog)
{
    std::wstring text;
    kztest::ModalScript modal([&] {
        const HWND window = kztest::WaitForDialog();
        text = kztest::TextOf(PaneOf(window), IDC_PANE_TEXT);
        ::PostMessageW(window, WM_CLOSE, 0, 0);
    });
    EXPECT_FALSE(ShowChildWindow(m_driver.get(), NoDialog));
    EXPECT_EQ(text, EditorText(IDS_PANE_NO_DIALOG));
}
