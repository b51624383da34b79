// The list of a project's devices, of which there may be thousands.
#include <set>

#include "EditorWindowFixture.h"
#include "ProjectXml.h"
#include "TemporaryFolder.h"

namespace {

constexpr int Many = 2000;

// A main window that remembers which rows its list of devices has asked for.
class WatchedWindow : public MainWindow {
public:
    using MainWindow::MainWindow;
    std::set<int> asked;
    std::wstring firstSigns;  // the last answer

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
        const BOOL isHandled = MainWindow::OnNotify(wParam, lParam, result);
        if (header->idFrom == IDC_DEVICES && header->code == LVN_GETDISPINFOW) {
            const LVITEMW& item = reinterpret_cast<const NMLVDISPINFOW*>(lParam)->item;
            asked.insert(item.iItem);
            if ((item.mask & LVIF_TEXT) != 0 && item.iItem == 0 && item.iSubItem == 0)
                firstSigns = item.pszText;
        }
        return isHandled;
    }
};

class ManyDevices : public editor_tests::EditorWindows {
protected:
    ManyDevices()
    {
        std::string devices;
        for (int number = 1; number <= Many; ++number) {
            const std::string digits = std::to_string(number);
            devices += editor_tests::DeviceXml("zep-" + digits, "F" + digits, "0x74", "ZEP", digits);
        }
        m_folder.Write("main.xml", editor_tests::MainXml(devices));
        m_window.emplace(m_modules, m_settings, std::make_unique<OpenProject>(m_folder.Path()));
    }
    void SetUp() override { ASSERT_TRUE(m_window->Create()); }
    ~ManyDevices() override { m_window->DestroyWindow(); }

    [[nodiscard]] HWND List() const { return ::GetDlgItem(m_window->m_hWnd, IDC_DEVICES); }
    [[nodiscard]] std::wstring Cell(int row, int column) const
    {
        std::array<wchar_t, 64> text{};
        ListView_GetItemText(List(), row, column, text.data(), static_cast<int>(text.size()));
        return text.data();
    }
    // The key's own data says that it was pressed once; Wine's list does not take a character without any.
    void Type(wchar_t character) const { ::SendMessageW(List(), WM_CHAR, character, 1); }
    [[nodiscard]] int Selected() const { return ListView_GetNextItem(List(), -1, LVNI_SELECTED); }
    void ExpectShown(const std::wstring& device) const
    {
        EXPECT_NE(kztest::TextOf(::GetDlgItem(m_window->m_hWnd, IDC_PAGE_CAPTION)).find(device), std::wstring::npos);
    }

    kztest::TemporaryFolder m_folder;
    std::optional<WatchedWindow> m_window;
};

TEST_F(ManyDevices, AreListedAll)
{
    EXPECT_EQ(ListView_GetItemCount(List()), Many);
    EXPECT_EQ(Cell(0, 1), L"1");
    EXPECT_EQ(Cell(Many - 1, 1), L"2000");
    EXPECT_EQ(Cell(Many - 1, 2), L"F2000");
    EXPECT_EQ(Cell(Many - 1, 3), L"Filtro de prueba, línea ñ");
    EXPECT_EQ(Cell(Many - 1, 4), L"0");
    EXPECT_EQ(Cell(Many - 1, 5), L"ZEP active harmonic filter");
}

TEST_F(ManyDevices, AreAskedForOnlyAsFarAsTheyAreSeen)
{
    ::RedrawWindow(m_window->m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    kztest::DispatchPending();
    EXPECT_FALSE(m_window->asked.empty());
    EXPECT_LT(m_window->asked.size(), 50U);
    EXPECT_LT(*m_window->asked.rbegin(), 50);
}

TEST_F(ManyDevices, KeepTheMarkWhereAKeyLeadsNoFurther)
{
    const auto press = [this](WPARAM key) {
        ::SendMessageW(List(), WM_KEYDOWN, key, 0);
        kztest::DispatchPending();
    };
    for (const WPARAM key : {VK_UP, VK_PRIOR, VK_HOME, VK_LEFT, VK_SHIFT}) {
        press(key);
        EXPECT_EQ(Selected(), 0) << key;
        ExpectShown(L"F1");
    }
    press(VK_END);
    for (const WPARAM key : {VK_DOWN, VK_NEXT, VK_END, VK_RIGHT, VK_CONTROL}) {
        press(key);
        EXPECT_EQ(Selected(), Many - 1) << key;
        ExpectShown(L"F2000");
    }
    press(VK_PRIOR);
    EXPECT_LT(Selected(), Many - 1);
    press(VK_NEXT);
    EXPECT_EQ(Selected(), Many - 1);
    press(VK_HOME);
    EXPECT_EQ(Selected(), 0);
}

TEST_F(ManyDevices, AreReachedByTheKeyboard)
{
    ::SendMessageW(List(), WM_KEYDOWN, VK_END, 0);
    EXPECT_EQ(Selected(), Many - 1);
    ExpectShown(L"F2000");
    ::SendMessageW(List(), WM_KEYDOWN, VK_UP, 0);
    EXPECT_EQ(Selected(), Many - 2);
    ExpectShown(L"F1999");
}

TEST_F(ManyDevices, AreLeftForNoneOnlyWhenNoneIsSelected)
{
    const HWND pane = kztest::ControlIn(m_window->m_hWnd, IDC_PANE);
    m_window->ShowPage(PageName::Options);
    ListView_SetItemState(List(), 0, 0, LVIS_SELECTED);
    ListView_SetItemState(List(), 7, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    kztest::DispatchPending();
    ExpectShown(L"F8");
    EXPECT_EQ(kztest::TextOf(::GetDlgItem(pane, IDC_PANE_TEXT)), L"") << "no device was shown in between";
    ListView_SetItemState(List(), -1, 0, LVIS_SELECTED);
    kztest::DispatchPending();
    EXPECT_EQ(kztest::TextOf(::GetDlgItem(pane, IDC_PANE_TEXT)), EditorText(IDS_PANE_NO_DEVICE));
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(m_window->m_hWnd, IDC_SELECT)));
}

TEST_F(ManyDevices, ShowSignsAndTellThemInWords)
{
    m_window->SendMessage(WM_COMMAND, IDC_CHECK);
    ::RedrawWindow(List(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(m_window->firstSigns, L"> ! ");
    EXPECT_EQ(Cell(0, 0), L"marked, with findings");
}

TEST_F(ManyDevices, AreFoundByTypingTheirNumber)
{
    for (const wchar_t digit : {L'1', L'2', L'3', L'4'})
        Type(digit);
    EXPECT_EQ(Selected(), 1233);
    ExpectShown(L"F1234");
}

TEST_F(ManyDevices, StayWhereTheyAreWhenNoNumberBeginsLikeThat)
{
    ListView_SetItemState(List(), 0, 0, LVIS_SELECTED);
    ListView_SetItemState(List(), 7, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    Type(L'x');
    EXPECT_EQ(Selected(), 7);
}

TEST_F(ManyDevices, AreFoundFromAnyRowOnOrFromTheStart)
{
    const auto find = [this](const wchar_t* number, UINT flags, int start) {
        NMLVFINDITEMW wanted{};
        wanted.hdr = {List(), IDC_DEVICES, static_cast<UINT>(LVN_ODFINDITEMW)};
        wanted.iStart = start;
        wanted.lvfi.flags = flags;
        wanted.lvfi.psz = number;
        return static_cast<int>(m_window->SendMessage(WM_NOTIFY, IDC_DEVICES, reinterpret_cast<LPARAM>(&wanted)));
    };
    EXPECT_EQ(find(L"12", LVFI_STRING, 0), 11);
    EXPECT_EQ(find(L"12", LVFI_STRING, 12), -1);
    EXPECT_EQ(find(L"12", LVFI_STRING | LVFI_WRAP, 12), 11);
    EXPECT_EQ(find(L"12", LVFI_STRING | LVFI_PARTIAL, 12), 119);
    EXPECT_EQ(find(L"12", LVFI_NEARESTXY, 0), -1);
}

// What many devices have in common takes long; the window answers meanwhile.
TEST_F(ManyDevices, HaveTheirCommonValuesReadInSlices)
{
    m_window->SendMessage(WM_COMMAND, IDC_MARK_ALL);
    DWORD longest = 0;
    const HWND values = kztest::ControlIn(m_window->m_hWnd, IDC_VALUES);
    const auto isShown = [&] {
        std::array<wchar_t, 64> text{};
        ListView_GetItemText(values, 1, 1, text.data(), static_cast<int>(text.size()));
        return m_window->MarkedDevices().size() == static_cast<std::size_t>(Many) && text[0] != L'\0';
    };
    const DWORD start = ::GetTickCount();
    for (bool isDone = false; !isDone && ::GetTickCount() - start < 20'000;) {
        const DWORD before = ::GetTickCount();
        kztest::DispatchPending();
        longest = std::max(longest, ::GetTickCount() - before);
        isDone = isShown();
    }
    EXPECT_TRUE(isShown());
    EXPECT_LT(longest, 1000U);
}

TEST_F(ManyDevices, AreCheckedInSlicesWithTheShareThatIsDone)
{
    const auto status = [this] {
        std::array<wchar_t, 64> part{};
        ::SendMessageW(::GetDlgItem(m_window->m_hWnd, IDC_STATUS_BAR), SB_GETTEXTW, 3,
                       reinterpret_cast<LPARAM>(part.data()));
        return std::wstring(part.data());
    };
    m_window->SendMessage(WM_COMMAND, IDC_CHECK);
    EXPECT_TRUE(status().starts_with(L"Checking ")) << "one slice is not enough";
    EXPECT_TRUE(status().ends_with(L" %"));
    EXPECT_TRUE(kztest::WaitUntil([&] {
        kztest::DispatchPending();
        return status() == L"2000 findings";
    })) << "no device has its document";
    EXPECT_EQ(Cell(Many - 1, 0), L"with findings");
}

TEST_F(ManyDevices, CanBeLeftUncheckedOnceTheCheckIsNoticed)
{
    const HWND cancel = ::GetDlgItem(m_window->m_hWnd, IDC_CANCEL_CHECK);
    EXPECT_FALSE(::IsWindowVisible(cancel));
    m_window->SendMessage(WM_COMMAND, IDC_CHECK);
    // It begins anew until it has lasted long enough, however quick the machine is.
    ASSERT_TRUE(kztest::WaitUntil([&] {
        kztest::DispatchPending();
        if (m_window->IsChecking() && !::IsWindowVisible(cancel))
            m_window->SendMessage(WM_COMMAND, IDC_CHECK);
        return ::IsWindowVisible(cancel) != FALSE;
    }));
    EXPECT_TRUE(::IsWindowEnabled(cancel));
    ::SendMessageW(cancel, BM_CLICK, 0, 0);
    EXPECT_FALSE(m_window->IsChecking());
    EXPECT_FALSE(::IsWindowVisible(cancel));
    kztest::DispatchPending();
    EXPECT_FALSE(m_window->IsChecking()) << "nothing has changed";
}

}  // namespace
