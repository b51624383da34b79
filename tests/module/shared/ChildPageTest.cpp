#include "ChildPage.h"

#include <gtest/gtest.h>

#include "Conditions.h"

namespace {

constexpr int ButtonId = 77;

// A window that notes the commands it gets.
class Listener : public CWnd {
public:
    explicit Listener(CWnd* parent)
    {
        const DWORD style = parent ? WS_CHILD : WS_POPUP;
        EXPECT_TRUE(CreateEx(0, AfxRegisterWndClass(0), L"", style, 0, 0, 100, 100, parent ? parent->m_hWnd : nullptr,
                             nullptr));
    }
    ~Listener() override { DestroyWindow(); }

    WPARAM command = 0;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM) override
    {
        command = wParam;
        return TRUE;
    }
};

class ChildPage : public testing::Test {
protected:
    [[nodiscard]] static HWND AddButton(const CWnd& parent)
    {
        return ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD, 0, 0, 10, 10, parent.m_hWnd,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(ButtonId)), nullptr, nullptr);
    }
    [[nodiscard]] bool Forward(HWND control) const
    {
        return ForwardPageCommand(m_container, ButtonId, reinterpret_cast<LPARAM>(control));
    }

    Listener m_container{nullptr};
    Listener m_page{&m_container};
};

TEST_F(ChildPage, PostsItsOkToItsContainer)
{
    PostToContainer(m_page, IDOK);
    EXPECT_EQ(m_container.command, 0U) << "posted, not sent";
    EXPECT_TRUE(kztest::WaitUntil([this] { return m_container.command == IDOK; }));
}

TEST_F(ChildPage, PostsNothingWithoutAContainer)
{
    PostToContainer(m_container, IDOK);
    kztest::DispatchPending();
    EXPECT_EQ(m_container.command, 0U);
}

TEST_F(ChildPage, GetsTheCommandsOfItsOwnControls)
{
    EXPECT_TRUE(Forward(AddButton(m_page)));
    EXPECT_EQ(m_page.command, static_cast<WPARAM>(ButtonId));
}

TEST_F(ChildPage, LeavesTheContainersCommandsToTheContainer)
{
    EXPECT_FALSE(Forward(AddButton(m_container)));
    EXPECT_FALSE(Forward(nullptr)) << "a menu or an accelerator";
    EXPECT_EQ(m_page.command, 0U);
}

TEST_F(ChildPage, LeavesOtherWindowsCommandsAlone)
{
    Listener other(nullptr);
    EXPECT_FALSE(Forward(AddButton(other)));
    EXPECT_FALSE(Forward(other.m_hWnd)) << "a window without a parent";
    EXPECT_EQ(other.command, 0U);
}

}  // namespace
