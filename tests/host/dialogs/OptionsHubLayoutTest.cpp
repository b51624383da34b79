// Where the options hub puts its buttons, modal and as a child, and the child's own ways.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>

#include "DialogLayout.h"
#include "GuiResources.h"
#include "KZDriverDeviceZEP.h"
#include "KZQuorvelantaSetup.h"
#include "ParameterNames.h"
#include "SystemColour.h"
#include "TestDialog.h"
#include "TestHub.h"

namespace {

CRect PlaceIn(const CWnd& dialog, HWND window)
{
    CRect place;
    ::GetWindowRect(window, &place);
    ::MapWindowPoints(nullptr, dialog.m_hWnd, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

std::size_t Rows(const CWnd& dialog)
{
    std::set<LONG> tops;
    for (int section = 0; section < KZSectionCount; ++section)
        tops.insert(PlaceIn(dialog, ::GetDlgItem(dialog.m_hWnd, KZSectionButtonBase + section)).top);
    return tops.size();
}

class OptionsHubLayout : public testing::TestWithParam<KZLanguage> {
protected:
    OptionsHubLayout() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
    ~OptionsHubLayout() override { KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English); }

    KZDriverDeviceZEP m_device{{L"zep-01", L"Filter 1", 1, L"ZEP", L"", {}}};
    TestDialog m_owner{};
    TestHub m_hub{m_owner.Window(), &m_device};
};

TEST_P(OptionsHubLayout, IsTidyInTwoRowsWhenModal)
{
    m_hub.Run([this] {
        m_hub.ShowWindow(SW_SHOW);
        kztest::ExpectNothingClippedOrOverlapping(m_hub.m_hWnd);
        EXPECT_EQ(Rows(m_hub), 2u);
        for (const int id : {IDOK, IDCANCEL})
            EXPECT_TRUE(m_hub.GetDlgItem(id)->GetStyle() & WS_VISIBLE);
    });
}

TEST_P(OptionsHubLayout, IsAsHighAsItsContentWhenModal)
{
    m_hub.Run([this] {
        CRect client;
        m_hub.GetClientRect(&client);
        RECT margin{0, 0, 0, 7};
        ::MapDialogRect(m_hub.m_hWnd, &margin);
        EXPECT_LE(std::abs(PlaceIn(m_hub, ::GetDlgItem(m_hub.m_hWnd, IDOK)).bottom + margin.bottom - client.bottom), 1);
    });
}

TEST_P(OptionsHubLayout, UsesAsFewRowsAsAChildsWidthAllows)
{
    ASSERT_TRUE(m_hub.Create(m_owner.Window()));
    m_owner.Window()->MoveWindow(0, 0, 3000, 3000);
    m_owner.Window()->ShowWindow(SW_SHOW);
    std::size_t lastRows = 1;
    for (const int width : {1600, 800, 400, 200}) {
        m_hub.MoveWindow(0, 0, width * m_owner.X(4) / 6, 1400 * m_owner.X(4) / 6);
        kztest::ExpectNothingClippedOrOverlapping(m_hub.m_hWnd);
        EXPECT_GE(Rows(m_hub), lastRows) << width;
        lastRows = Rows(m_hub);
    }
    EXPECT_GE(lastRows, 4u);
    m_hub.MoveWindow(0, 0, 1600 * m_owner.X(4) / 6, 500);
    EXPECT_EQ(Rows(m_hub), 1u);
}

// Around all and between what does not belong together 7 dialog units, between the sections and between the buttons 4.
TEST_P(OptionsHubLayout, KeepsTheDistancesOfThePlatformsGuidelines)
{
    m_hub.Run([this] {
        const auto section = [this](int number) {
            return PlaceIn(m_hub, ::GetDlgItem(m_hub.m_hWnd, KZSectionButtonBase + number));
        };
        RECT units{4, 4, 7, 7};
        ::MapDialogRect(m_hub.m_hWnd, &units);
        CRect client;
        m_hub.GetClientRect(&client);
        const CRect ok = PlaceIn(m_hub, ::GetDlgItem(m_hub.m_hWnd, IDOK));
        const CRect cancel = PlaceIn(m_hub, ::GetDlgItem(m_hub.m_hWnd, IDCANCEL));
        EXPECT_EQ(section(0).left, units.right);
        EXPECT_EQ(section(0).top, units.bottom);
        EXPECT_EQ(section(3).right, client.right - units.right);
        EXPECT_EQ(section(1).left - section(0).right, units.left);
        EXPECT_EQ(section(4).top - section(0).bottom, units.top);
        EXPECT_EQ(ok.top - section(4).bottom, units.bottom);
        EXPECT_EQ(cancel.left - ok.right, units.left);
        EXPECT_EQ(ok.bottom, client.bottom - units.bottom);
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, OptionsHubLayout, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);

class ChildHub : public testing::Test {
protected:
    ChildHub() { m_hub->SetChild(); }

    KZDriverDeviceZEP m_device{{L"zep-01", L"Filter 1", 1, L"ZEP", L"", {}}};
    std::unique_ptr<TestDialog> m_parent = std::make_unique<TestDialog>(std::initializer_list<TestControl>{});
    std::unique_ptr<TestHub> m_hub = std::make_unique<TestHub>(m_parent->Window(), &m_device);
};

TEST_F(ChildHub, IsAChildWindowWithoutFrameThatTabWalksThrough)
{
    ASSERT_TRUE(m_hub->Create(m_parent->Window()));
    EXPECT_EQ(::GetParent(m_hub->m_hWnd), m_parent->Window()->m_hWnd);
    const DWORD style = m_hub->GetStyle();
    EXPECT_TRUE(style & WS_CHILD);
    EXPECT_TRUE(style & WS_VISIBLE);
    EXPECT_TRUE(style & DS_CONTROL);
    EXPECT_FALSE(style & (WS_POPUP | WS_SYSMENU | WS_DLGFRAME | WS_BORDER));
    EXPECT_TRUE(::GetWindowLongW(m_hub->m_hWnd, GWL_EXSTYLE) & WS_EX_CONTROLPARENT);
}

TEST_F(ChildHub, ShowsNeitherOkNorCancel)
{
    ASSERT_TRUE(m_hub->Create(m_parent->Window()));
    for (const int id : {IDOK, IDCANCEL}) {
        EXPECT_FALSE(m_hub->GetDlgItem(id)->GetStyle() & WS_VISIBLE);
        EXPECT_FALSE(m_hub->GetDlgItem(id)->IsWindowEnabled());
    }
}

TEST_F(ChildHub, NamesTheDeviceAndItsModel)
{
    ASSERT_TRUE(m_hub->Create(m_parent->Window()));
    wchar_t text[128] = L"";
    m_hub->GetDlgItemText(1210, text, 128);
    EXPECT_STREQ(text, L"Filter 1");
    m_hub->GetDlgItemText(1211, text, 128);
    EXPECT_EQ(KZBasicString(text), KZQuorvelantaSetup::Get()->DriverName(L"ZEP"));
}

COLORREF BackgroundOf(const CWnd& dialog, UINT message, HWND control)
{
    const HDC dc = ::GetDC(control);
    const auto brush = reinterpret_cast<HBRUSH>(
        dialog.SendMessage(message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control)));
    LOGBRUSH described{};
    ::GetObjectW(brush, sizeof(described), &described);
    ::ReleaseDC(control, dc);
    return described.lbColor;
}

TEST_F(ChildHub, HasTheBackgroundThatItWasGiven)
{
    m_hub->SetBackgroundColor(RGB(250, 240, 230));
    ASSERT_TRUE(m_hub->Create(m_parent->Window()));
    EXPECT_EQ(BackgroundOf(*m_hub, WM_CTLCOLORDLG, m_hub->m_hWnd), RGB(250, 240, 230));
    EXPECT_EQ(BackgroundOf(*m_hub, WM_CTLCOLORSTATIC, m_hub->GetDlgItem(1210)->m_hWnd), RGB(250, 240, 230));
}

TEST_F(ChildHub, FollowsTheSystemsWindowColour)
{
    m_hub->SetBackgroundColor(::GetSysColor(COLOR_WINDOW));
    ASSERT_TRUE(m_hub->Create(m_parent->Window()));
    const kztest::SystemColour window(COLOR_WINDOW, RGB(10, 20, 30));
    m_hub->SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(BackgroundOf(*m_hub, WM_CTLCOLORDLG, m_hub->m_hWnd), RGB(10, 20, 30));
}

TEST_F(ChildHub, KeepsAColourOfItsOwn)
{
    m_hub->SetBackgroundColor(RGB(250, 240, 230));
    ASSERT_TRUE(m_hub->Create(m_parent->Window()));
    const kztest::SystemColour window(COLOR_WINDOW, RGB(10, 20, 30));
    m_hub->SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(BackgroundOf(*m_hub, WM_CTLCOLORDLG, m_hub->m_hWnd), RGB(250, 240, 230));
}

TEST_F(ChildHub, StaysOnEnterAndEscape)
{
    ASSERT_TRUE(m_hub->Create(m_parent->Window()));
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}}) {
        MSG message{m_hub->m_hWnd, WM_KEYDOWN, key, 1, 0, {}};
        ::IsDialogMessageW(m_hub->m_hWnd, &message);
    }
    for (const WPARAM id : {WPARAM{IDOK}, WPARAM{IDCANCEL}})
        m_hub->SendMessage(WM_COMMAND, id);
    EXPECT_TRUE(::IsWindow(m_hub->m_hWnd));
    EXPECT_TRUE(m_hub->GetStyle() & WS_VISIBLE);
}

LRESULT CALLBACK NoteChange(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR changed)
{
    if (message == WM_KZ_OPTIONS_CHANGED)
        *reinterpret_cast<int*>(changed) = static_cast<int>(wParam);
    return ::DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(ChildHub, CallsItsHooksAndTellsItsParent)
{
    int changed = -1;
    ::SetWindowSubclass(m_parent->Window()->m_hWnd, NoteChange, 1, reinterpret_cast<DWORD_PTR>(&changed));
    ASSERT_TRUE(m_hub->Create(m_parent->Window()));
    m_hub->Press(KZSectionUnits);
    ASSERT_EQ(m_hub->calls.size(), 1u);
    EXPECT_EQ(changed, KZSectionUnits);
    ::RemoveWindowSubclass(m_parent->Window()->m_hWnd, NoteChange, 1);
}

TEST_F(ChildHub, HasNoWindowAfterAFailedCreate)
{
    CWnd windowless;
    EXPECT_EQ(m_hub->Create(nullptr), 0);
    EXPECT_EQ(m_hub->Create(&windowless), 0);
    EXPECT_FALSE(m_hub->m_hWnd);
    EXPECT_NE(m_hub->Create(m_parent->Window()), 0) << "the object can still be used";
    EXPECT_EQ(m_hub->Create(m_parent->Window()), 0) << "but not twice at once";
}

// Windows refuses to create the dialog: a hook stands in for whatever the reason may be.
LRESULT CALLBACK RefuseDialogs(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HCBT_CREATEWND) {
        wchar_t name[16] = L"";
        ::GetClassNameW(reinterpret_cast<HWND>(wParam), name, 16);
        if (std::wstring_view(name) == L"#32770")
            return 1;
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(ChildHub, ReportsThatWindowsRefusesIt)
{
    const HHOOK hook = ::SetWindowsHookExW(WH_CBT, RefuseDialogs, nullptr, ::GetCurrentThreadId());
    EXPECT_EQ(m_hub->Create(m_parent->Window()), 0);
    ::UnhookWindowsHookEx(hook);
    EXPECT_FALSE(m_hub->m_hWnd);
    EXPECT_FALSE(::GetWindow(m_parent->Window()->m_hWnd, GW_CHILD));
}

TEST_F(ChildHub, TakesItsWindowWithItWhenItIsDeleted)
{
    ASSERT_TRUE(m_hub->Create(m_parent->Window()));
    const HWND window = m_hub->m_hWnd;
    m_hub.reset();
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(ChildHub, LeavesNothingBehind)
{
    const auto run = [this] {
        auto hub = std::make_unique<TestHub>(m_parent->Window(), &m_device);
        hub->SetBackgroundColor(RGB(255, 255, 255));
        hub->Create(m_parent->Window());
    };
    run();
    const kztest::GuiResources before = kztest::CountGuiResources();
    for (int i = 0; i < 20; ++i)
        run();
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

TEST_F(ChildHub, OutlivesItsParentsWindow)
{
    ASSERT_TRUE(m_hub->Create(m_parent->Window()));
    m_parent.reset();
    EXPECT_FALSE(m_hub->m_hWnd);
}

}  // namespace
