#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>

#include "MessageBoxes.h"
#include "TestDialog.h"

namespace {

constexpr UINT Act = WM_APP + 9;

class ActingDialog : public TestDialog {
public:
    std::function<LRESULT(UINT)> action;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (action && (message == Act || message == WM_COMMAND || message == WM_PAINT || message == WM_NCDESTROY))
            return action(message);
        return TestDialog::WindowProc(message, wParam, lParam);
    }
};

class ExceptionGuard : public testing::Test {
protected:
    ExceptionGuard() { dialog.Open(); }

    // What the user is told when the exception leaves a handler.
    template <class Exception>
    std::vector<std::wstring> TextsOf(Exception exception)
    {
        const kztest::MessageBoxes messages;
        dialog.action = [=](UINT message) -> LRESULT {
            if (message == Act)
                throw exception;
            return TRUE;
        };
        EXPECT_EQ(dialog.SendMessage(Act), 0);
        return messages.Texts();
    }

    ActingDialog dialog;
};

using Texts = std::vector<std::wstring>;

TEST_F(ExceptionGuard, ReportsWhatWasThrown)
{
    EXPECT_EQ(TextsOf(std::runtime_error("what happened")), Texts{L"what happened"});
    EXPECT_EQ(TextsOf(std::bad_alloc()), Texts{L"Out of memory."});
    EXPECT_EQ(TextsOf(42), Texts{L"An exception of an unknown kind was thrown."});
    EXPECT_EQ(TextsOf(new CResourceException), Texts{L"A required resource was unavailable."});
}

TEST_F(ExceptionGuard, SaysNothingWhenTheUserHasBeenTold)
{
    EXPECT_EQ(TextsOf(new CUserException), Texts{});
}

TEST_F(ExceptionGuard, CountsCommandsAsHandled)
{
    const kztest::MessageBoxes messages;
    dialog.action = [](UINT) -> LRESULT { throw std::runtime_error("command"); };
    EXPECT_EQ(dialog.SendMessage(WM_COMMAND, 1234), TRUE);
}

TEST_F(ExceptionGuard, ReportsAFailedPaintingOnce)
{
    const kztest::MessageBoxes messages;
    dialog.ShowWindow(SW_SHOW);
    dialog.action = [](UINT message) -> LRESULT {
        if (message == WM_PAINT)
            throw std::runtime_error("paint");
        return 0;
    };
    dialog.Invalidate();
    dialog.UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(dialog.m_hWnd, nullptr, FALSE));
    EXPECT_EQ(messages.Texts(), Texts{L"paint"});
}

TEST_F(ExceptionGuard, DetachesAnObjectWhoseDestructionThrew)
{
    const kztest::MessageBoxes messages;
    const HWND window = dialog.m_hWnd;
    dialog.action = [](UINT message) -> LRESULT {
        if (message == WM_NCDESTROY)
            throw std::runtime_error("destruction");
        return 0;
    };
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
}

TEST_F(ExceptionGuard, PassesThroughOnePlaceThatAProgramCanReplace)
{
    class QuietApp : public CWinApp {
    public:
        LRESULT ProcessWndProcException(CException*, const MSG* message) override
        {
            seen = message->message;
            return 77;
        }
        UINT seen = 0;
    };
    CWinApp* const before = AfxGetApp();
    ASSERT_NE(before, nullptr);
    QuietApp application;
    dialog.action = [](UINT) -> LRESULT { throw std::runtime_error("quiet"); };
    EXPECT_EQ(dialog.SendMessage(Act), 77);
    EXPECT_EQ(application.seen, Act);
}

}  // namespace
