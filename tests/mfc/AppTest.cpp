#include <gtest/gtest.h>

#include <thread>

#include "Conditions.h"
#include "Controls.h"
#include "TestDialog.h"

namespace {

class App : public CWinApp {
public:
    App() : CWinApp(L"App") {}

    BOOL InitInstance() override
    {
        initialised = true;
        return TRUE;
    }
    BOOL OnIdle(LONG count) override
    {
        ++idleCalls;
        return CWinApp::OnIdle(count);
    }

    bool initialised = false;
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
    EXPECT_EQ(AfxWinMain(::GetModuleHandleW(nullptr), nullptr, nullptr, SW_HIDE), 0);
    EXPECT_TRUE(application.initialised);
    EXPECT_EQ(application.m_pMainWnd, nullptr);
}

TEST(Application, EndsAtOnceWhenItCannotBegin)
{
    class Failing : public CWinApp {
    public:
        BOOL InitInstance() override
        {
            m_pMainWnd = &window;
            window.Open();
            return CWinApp::InitInstance();
        }
        int ExitInstance() override { return 5; }
        TestDialog window;
    } application;
    EXPECT_EQ(AfxWinMain(::GetModuleHandleW(nullptr), nullptr, nullptr, SW_HIDE), 5);
    EXPECT_EQ(application.window.m_hWnd, nullptr) << "its window has gone with it";
}

TEST(Application, IsNamedAfterItsProgramUnlessItHasAName)
{
    const CWinApp nameless;
    EXPECT_STREQ(AfxGetAppName(), L"mfc_tests");
}

TEST(Application, FindsNoIconAndNoCursorThatNobodyHas)
{
    EXPECT_EQ(AfxGetApp()->LoadIcon(4321), nullptr);
    EXPECT_EQ(AfxGetApp()->LoadCursor(4321), nullptr);
}

TEST(Application, QuitsWithTheCodeThatItIsTold)
{
    App application;
    AfxPostQuitMessage(9);
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
        AfxPostQuitMessage(0);
        EXPECT_FALSE(AfxPumpMessage());
    }).join();
}

TEST(WaitCursor, StaysUntilTheLastWhoWaits)
{
    CCmdTarget& target = *AfxGetApp();
    const HCURSOR wait = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_WAIT));
    const HCURSOR cross = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_CROSS));
    ::SetCursor(cross);
    target.EndWaitCursor();
    target.RestoreWaitCursor();
    EXPECT_EQ(::GetCursor(), cross) << "nobody waits";
    target.BeginWaitCursor();
    target.BeginWaitCursor();
    EXPECT_EQ(::GetCursor(), wait);
    ::SetCursor(nullptr);
    target.RestoreWaitCursor();
    EXPECT_EQ(::GetCursor(), wait);
    target.EndWaitCursor();
    EXPECT_EQ(::GetCursor(), wait);
    target.EndWaitCursor();
    EXPECT_EQ(::GetCursor(), cross);
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
    window.SetTimer(1, 10, [](HWND, UINT, UINT_PTR, DWORD) { ::PostQuitMessage(7); });
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
