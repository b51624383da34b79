#include <gtest/gtest.h>

#include <thread>

#include "Conditions.h"
#include "Controls.h"
#include "TestDialog.h"

namespace {

class App : public CWinApp {
public:
    App() : CWinApp(L"App") {}

    BOOL OnIdle(LONG count) override
    {
        ++idleCalls;
        return CWinApp::OnIdle(count);
    }

    int idleCalls = 0;
};

class KeyDialog : public TestDialog {
public:
    BOOL PreTranslateMessage(MSG* message) override
    {
        keys += message->message == WM_KEYDOWN ? 1 : 0;
        return TestDialog::PreTranslateMessage(message);
    }
    int keys = 0;
};

TEST(Application, IsTheOneThatWasMadeLast)
{
    const CWinApp* const before = AfxGetApp();
    ASSERT_NE(before, nullptr);
    {
        const App application;
        EXPECT_EQ(AfxGetApp(), &application);
        EXPECT_EQ(AfxGetThread(), &application);
        EXPECT_STREQ(AfxGetAppName(), L"App");
    }
    EXPECT_EQ(AfxGetApp(), before);
}

TEST(Application, RunsUntilItsMainWindowIsDestroyed)
{
    App application;
    KeyDialog window;
    window.Open();
    application.m_pMainWnd = &window;
    kztest::PressKey(window.m_hWnd, VK_TAB);
    window.pressed = [&] { window.DestroyWindow(); };
    kztest::PostClick(window.m_hWnd, IDC_BUTTON);
    EXPECT_TRUE(AfxWinInit(::GetModuleHandleW(nullptr), nullptr, nullptr, SW_HIDE));
    EXPECT_EQ(application.Run(), 0);
    EXPECT_EQ(application.m_pMainWnd, nullptr);
}

TEST(Application, IsNamedAfterItsProgramUnlessItHasAName)
{
    const CWinApp nameless;
    EXPECT_STREQ(AfxGetAppName(), L"mfc_tests");
}

TEST(Application, QuitsWithTheCodeThatItIsTold)
{
    App application;
    ::PostQuitMessage(9);
    EXPECT_EQ(application.Run(), 9);
}

TEST(Application, IsNoneOfOtherThreads)
{
    std::thread([] {
        EXPECT_EQ(AfxGetThread(), nullptr);
        MSG made;
        ::PeekMessageW(&made, nullptr, 0, 0, PM_NOREMOVE);  // makes the thread's queue
        ::PostThreadMessageW(::GetCurrentThreadId(), WM_APP, 0, 0);
        EXPECT_TRUE(AfxPumpMessage());
        ::PostQuitMessage(0);
        EXPECT_FALSE(AfxPumpMessage());
    }).join();
}

TEST(Application, GivesItsMainWindowTheKeysOfOtherWindows)
{
    App application;
    KeyDialog window;
    window.Open();
    CWnd other;  // no dialog, which would take the key itself
    ASSERT_TRUE(other.CreateEx(0, L"EDIT", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    application.m_pMainWnd = &window;
    MSG key{};
    key.hwnd = other.m_hWnd;
    key.message = WM_KEYDOWN;
    key.wParam = VK_F5;
    application.PreTranslateMessage(&key);
    EXPECT_EQ(window.keys, 1);
    application.m_pMainWnd = nullptr;
}

TEST(Application, HasIdleTimeWhenItsQueueIsEmpty)
{
    App application;
    TestDialog window;
    window.Open();
    // The timer comes when all else is done.
    ::SetTimer(window.m_hWnd, 1, 10, [](HWND, UINT, UINT_PTR, DWORD) { ::PostQuitMessage(7); });
    EXPECT_EQ(application.Run(), 7);
    EXPECT_GE(application.idleCalls, 1);
}

TEST(Application, EndsAnOpenDialogWhenItIsToQuit)
{
    TestDialog dialog;
    dialog.initialise = [] { ::PostQuitMessage(3); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    MSG message;
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "the outer loops end too";
}

}  // namespace
