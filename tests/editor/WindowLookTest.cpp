// The editor's windows with the real module in them: nothing cut, nothing over anything else, in each language and at
// each resolution.
#include "DialogLayout.h"
#include "EditorWindowFixture.h"
#include "ModalScript.h"
#include "ParameterNames.h"
#include "PlatformNames.h"
#include "crash/CrashDialog.h"
#include "modules/DeviceType.h"
#include "project/ChosenVariables.h"
#include "window/options/ChildWindow.h"

namespace {

class MainWindowLook : public editor_tests::OpenMainWindow, public testing::WithParamInterface<KZLanguage> {
protected:
    MainWindowLook() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
};

int TextWidth(HWND window, std::wstring_view text)
{
    const HDC dc = ::GetDC(window);
    const HGDIOBJ before = ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)));
    SIZE size{};
    ::GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
    ::SelectObject(dc, before);
    ::ReleaseDC(window, dc);
    return size.cx;
}

}  // namespace

TEST_P(MainWindowLook, IsTidyOnEachPageForEachDevice)
{
    for (const PageName page : {PageName::Values, PageName::Variables, PageName::Options}) {
        m_window.ShowPage(page);
        ForEachDevice([this] { kztest::ExpectNothingClippedOrOverlapping(m_window.m_hWnd); });
    }
}

TEST_P(MainWindowLook, IsTidyWhenItIsSmallest)
{
    m_window.MoveWindow(0, 0, 10, 10);
    for (const PageName page : {PageName::Values, PageName::Variables}) {
        m_window.ShowPage(page);
        ForEachDevice([this] { kztest::ExpectNothingClippedOrOverlapping(m_window.m_hWnd); });
    }
}

TEST_P(MainWindowLook, IsTidyWhenItIsLarge)
{
    m_window.MoveWindow(0, 0, 2400, 1800);
    ForEachDevice([this] { kztest::ExpectNothingClippedOrOverlapping(m_window.m_hWnd); });
}

// As many variables as a filter has, with names as long as they get in this plant.
TEST_P(MainWindowLook, IsTidyWithAllVariablesChosen)
{
    constexpr int lastDevice = 5;
    plant::VariableList variables;
    for (int i = 0; i < 118; ++i)
        variables.push_back(KZBasicString::Format(L"LAB ENSAYOS.ARM25A3L%d", i));
    plant::StoreChosenVariables(*KZMainCfg::Get(), m_project.Devices()[lastDevice].driverId, variables);
    ChooseDevice(lastDevice);
    m_window.ShowPage(PageName::Variables);
    const HWND list = Control(IDC_CHOSEN);
    ASSERT_EQ(::SendMessageW(list, LB_GETCOUNT, 0, 0), 118);
    kztest::ExpectNothingClippedOrOverlapping(m_window.m_hWnd);
    EXPECT_GE(::SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0), TextWidth(list, L"LAB ENSAYOS.ARM25A3L117"));
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowLook, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);

class ChildWindowLook : public editor_tests::EditorWindows, public testing::WithParamInterface<KZLanguage> {
protected:
    ChildWindowLook() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
};

TEST_P(ChildWindowLook, IsTidy)
{
    const std::unique_ptr<KZDriverDevice> driver = MakeDriver(m_project.Devices().front());
    const KZDriverCallbacks* callbacks = m_modules.CallbacksOf(driver->TypeName());
    ASSERT_NE(callbacks, nullptr);
    kztest::ModalScript script([] {
        const HWND window = kztest::WaitForDialog();
        kztest::ExpectNothingClippedOrOverlapping(window);
        ::PostMessageW(window, WM_CLOSE, 0, 0);
    });
    EXPECT_TRUE(ShowChildWindow(driver.get(), callbacks->createChildOptions));
}

INSTANTIATE_TEST_SUITE_P(Languages, ChildWindowLook, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);

class CrashDialogLook : public testing::TestWithParam<KZLanguage> {
protected:
    CrashDialogLook() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
};

TEST_P(CrashDialogLook, IsTidy)
{
    std::string report = "KZEditor 1.0.0.0\r\n";
    for (int frame = 0; frame < 40; ++frame)
        report += "frame KZEditor.exe 12345\r\n";
    kztest::ModalScript script([] {
        const HWND dialog = kztest::WaitForDialog();
        EXPECT_NE(::GetDlgItem(dialog, IDC_CRASH_REPORT), nullptr);
        EXPECT_EQ(kztest::ExpectNamesOfTheirOwn(dialog, {}), 3);
        EXPECT_EQ(kztest::ExpectAccessKeysOfTheirOwn(dialog), L"C");
        kztest::ExpectNothingClippedOrOverlapping(dialog);
        ::PostMessageW(dialog, WM_CLOSE, 0, 0);
    });
    CrashDialog({"C:\\Users\\Somebody\\AppData\\Local\\KZEditor\\crash\\2026-01-01 10-00-00 12345.txt", report},
                nullptr)
        .DoModal();
}

INSTANTIATE_TEST_SUITE_P(Languages, CrashDialogLook, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);
