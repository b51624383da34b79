#include "TabPage.h"

#include <gtest/gtest.h>

#include "Conditions.h"
#include "TabContainer.h"

namespace {

constexpr int ButtonId = 77;

// A page in a plain window, which notes the commands that are not its own OK and Cancel.
class Listener : public TabPage {
public:
    explicit Listener(CWnd* parent) : TabPage(0)
    {
        const DWORD style = parent ? WS_CHILD : WS_POPUP;
        EXPECT_TRUE(CreateEx(0, AfxRegisterWndClass(0), L"", style, 0, 0, 100, 100, parent ? parent->m_hWnd : nullptr,
                             nullptr));
    }
    ~Listener() override { DestroyWindow(); }

    WPARAM command = 0;
    bool keepsOk = true;  // off: OK and Cancel go the page's way

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (!keepsOk)
            return TabPage::OnCommand(wParam, lParam);
        command = wParam;
        return TRUE;
    }
    void PlanLayout(LayoutPlan&) override {}
    void NameControls(AccessibleNames&, const KZBasicString&) override {}
};

class TabPages : public testing::Test {
protected:
    [[nodiscard]] static HWND AddButton(const CWnd& parent)
    {
        return ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD, 0, 0, 10, 10, parent.m_hWnd,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(ButtonId)), nullptr, nullptr);
    }
    [[nodiscard]] bool Forward(HWND control)
    {
        CTabCtrl tab;
        TabPage* current = nullptr;
        return TabContainer(m_container, tab, current).ForwardCommand(ButtonId, reinterpret_cast<LPARAM>(control));
    }

    Listener m_container{nullptr};
    Listener m_page{&m_container};
};

TEST_F(TabPages, PostTheirOkAndCancelToTheirContainer)
{
    m_page.keepsOk = false;
    for (const WPARAM command : {IDOK, IDCANCEL}) {
        m_container.command = 0;
        m_page.SendMessage(WM_COMMAND, command);
        EXPECT_EQ(m_container.command, 0U) << "posted, not sent";
        EXPECT_TRUE(kztest::WaitUntil([&] { return m_container.command == command; }));
    }
    EXPECT_TRUE(::IsWindow(m_page.m_hWnd));
}

TEST_F(TabPages, PostNothingWithoutAContainer)
{
    m_container.keepsOk = false;
    m_container.SendMessage(WM_COMMAND, IDOK);
    kztest::DispatchPending();
    EXPECT_TRUE(::IsWindow(m_container.m_hWnd));
}

TEST_F(TabPages, GetTheCommandsOfTheirOwnControls)
{
    EXPECT_TRUE(Forward(AddButton(m_page)));
    EXPECT_EQ(m_page.command, static_cast<WPARAM>(ButtonId));
}

TEST_F(TabPages, LeaveTheContainersCommandsToTheContainer)
{
    EXPECT_FALSE(Forward(AddButton(m_container)));
    EXPECT_FALSE(Forward(nullptr)) << "a menu or an accelerator";
    EXPECT_EQ(m_page.command, 0U);
}

TEST_F(TabPages, LeaveOtherWindowsCommandsAlone)
{
    Listener other(nullptr);
    EXPECT_FALSE(Forward(AddButton(other)));
    EXPECT_FALSE(Forward(other.m_hWnd)) << "a window without a parent";
    EXPECT_EQ(other.command, 0U);
}

}  // namespace
