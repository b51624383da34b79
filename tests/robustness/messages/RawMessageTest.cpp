// Random window messages with random parameters, sent and posted to the dialogs, their pages and their controls.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>

#include "DialogKind.h"
#include "DialogUser.h"
#include "Endurance.h"
#include "LethalMessages.h"
#include "ProjectRules.h"
#include "SelectVarControls.h"
#include "SelectVarMessages.h"
#include "SelectionModel.h"
#include "StepLoop.h"
#include "ZepProject.h"

namespace {

constexpr int Maximum = 7;
constexpr long MessagesPerVisit = 100;
constexpr long MostEndings = 200;  // far more than a visit takes, whatever is open and asks back

constexpr int UncheckedDecimals = -1;  // see BrokenRuleOfConfiguration

// What a dialog's code looks at more than at others.
constexpr UINT Favourites[] = {WM_COMMAND,  WM_COMMAND,        WM_SIZE,        WM_SHOWWINDOW, WM_SELECTVAR_SELECT,
                               WM_CLOSE,    WM_CTLCOLORSTATIC, WM_CTLCOLORBTN, WM_ERASEBKGND, WM_SELECTVAR_UNSELECT,
                               WM_KEYDOWN,  WM_CHAR,           WM_LBUTTONDOWN, WM_LBUTTONUP,  WM_THEMECHANGED,
                               WM_SETFOCUS, WM_KILLFOCUS,      WM_ACTIVATE,    WM_PAINT,      BM_CLICK};

// Windows draws on the device context in such a message; a random number may by chance be that of another kind of
// object, on which Wine faults. They come with a real one.
bool CarriesDeviceContext(UINT message)
{
    return message == WM_PAINT || message == WM_ERASEBKGND || message == WM_ICONERASEBKGND || message == WM_PRINT ||
           message == WM_PRINTCLIENT || (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC);
}

class DeviceContext {
public:
    explicit DeviceContext(HWND window) noexcept : m_window(window), m_context(::GetDC(window)) {}
    ~DeviceContext() { ::ReleaseDC(m_window, m_context); }
    DeviceContext(const DeviceContext&) = delete;
    DeviceContext& operator=(const DeviceContext&) = delete;
    [[nodiscard]] WPARAM Value() const noexcept { return reinterpret_cast<WPARAM>(m_context); }

private:
    HWND m_window;
    HDC m_context;
};

class RawMessages {
public:
    explicit RawMessages(std::uint64_t seed) : m_random(seed), m_log(seed), m_user(m_random, m_log, 10) {}

    void SelectVariables();
    // section: the one that is opened before the messages come, if any.
    void SetOptions(OptionalSection section);
    [[nodiscard]] const EventLog& Log() const noexcept { return m_log; }
    // How many messages a dialog, its pages and controls were given; all of them.
    [[nodiscard]] long Given(DialogKind kind) const { return m_given[static_cast<std::size_t>(kind)]; }
    [[nodiscard]] long Given() const { return std::accumulate(m_given.begin(), m_given.end(), 0L); }

private:
    void Begin(OptionalSection section = {});
    void Step();
    void End(HWND dialog);
    void Bombard(HWND dialog);
    void ProbeCount(HWND dialog);
    [[nodiscard]] UINT Message();
    [[nodiscard]] LONG_PTR Parameter(const std::vector<HWND>& windows);

    Random m_random;
    EventLog m_log;
    DialogUser m_user;
    ZepProject m_project;
    std::optional<StepLoop> m_loop;
    OptionalSection m_section;
    long m_left = 0;
    long m_endings = 0;
    std::array<long, DialogKindCount> m_given{};
};

void RawMessages::Begin(OptionalSection section)
{
    m_section = section;
    m_left = MessagesPerVisit;
    m_endings = 0;
    m_loop.emplace([this] { Step(); });
}

void RawMessages::SelectVariables()
{
    Begin();
    std::list<KZBasicString> names{L"DEV1.HZIN"};
    m_log.Add("open the selection");
    m_project.Select(names, Maximum);
    m_loop.reset();
    EXPECT_LE(names.size(), static_cast<std::size_t>(Maximum)) << m_log.Describe();
    // A confirmed dialog that is still open behind a menu can be cancelled by one more message, but not by the user.
    EXPECT_TRUE(SelectionModel(L"DEV1", {}, 0).Offers(Texts(names))) << m_log.Describe();
}

void RawMessages::SetOptions(OptionalSection section)
{
    Begin(section);
    m_log.Add("open the options");
    m_project.Options();
    m_loop.reset();
    ASSERT_EQ(BrokenRuleOfConfiguration(Plant::Configuration(), UncheckedDecimals), "") << m_log.Describe();
    ASSERT_EQ(BrokenRuleOfDevice(m_project.plant.DeviceText()), "") << m_log.Describe();
}

void RawMessages::Step()
{
    const HWND top = TopDialogOfThread();
    if (!top) {
        m_log.Add("no dialog");
        return;
    }
    // Before the message, which may open a dialog whose loop goes on from here.
    m_loop->Continue();
    // A menu takes the messages of the dialogs behind it, and ends when those in front of it have.
    LeaveMenu();
    if (IsMessageBox(top))
        m_user.Answer(top);
    else if (m_section && KindOf(top) == DialogKind::Hub)
        ClickSection(top, *std::exchange(m_section, std::nullopt));
    else if (m_left-- > 0)
        Bombard(top);
    else
        End(top);
}

void RawMessages::End(HWND dialog)
{
    constexpr long Patience = 10;
    m_log.Add("end the dialog");
    if (++m_endings > MostEndings)
        m_log.GiveUp("hang: a dialog does not end");
    ProbeCount(dialog);
    const bool confirms = m_endings <= Patience && m_random.OneIn(2);
    ::PostMessageW(dialog, WM_COMMAND, confirms ? IDOK : IDCANCEL, 0);
}

void RawMessages::Bombard(HWND dialog)
{
    std::vector<HWND> windows = DescendantsOf(dialog);
    windows.push_back(dialog);
    // The dialogs themselves and their pages have the product's code, so every other message goes there.
    HWND target = m_random.Pick(windows);
    if (m_random.OneIn(2)) {
        std::erase_if(windows, [](HWND window) { return !IsOfClass(window, L"#32770"); });
        target = m_random.Pick(windows);
    }
    const UINT message = Message();
    if (WhyLethal(target, message))
        return;
    const DeviceContext context(target);
    const bool draws = CarriesDeviceContext(message);
    const WPARAM wParam = draws ? context.Value() : static_cast<WPARAM>(Parameter(windows));
    const LPARAM lParam = Parameter(windows);
    // Keys come through the queue to the window that has the focus, never to a hidden one: Wine's search for the letter
    // of a button then runs in circles.
    const bool isKey = message >= WM_KEYFIRST && message <= WM_KEYLAST;
    const bool posted = m_random.OneIn(3) && !draws && (!isKey || IsReachable(target));
    char what[80];
    ++m_given[static_cast<std::size_t>(KindOf(dialog))];
    std::snprintf(what, sizeof what, "%s 0x%04x (0x%llx, 0x%llx)", posted ? "post" : "send", message,
                  static_cast<unsigned long long>(wParam), static_cast<unsigned long long>(lParam));
    m_log.Add(what, ::GetDlgCtrlID(target));
    if (posted)
        ::PostMessageW(target, message, wParam, lParam);
    else
        ::SendMessageW(target, message, wParam, lParam);
}

UINT RawMessages::Message()
{
    switch (m_random.Below(4)) {
    case 0:
        return m_random.Pick(Favourites);
    case 1:
        return static_cast<UINT>(m_random.Below(0x0400));
    case 2:
        return static_cast<UINT>(WM_USER + m_random.Below(0x80));
    default:
        return static_cast<UINT>(m_random.Below(0xC000));
    }
}

LONG_PTR RawMessages::Parameter(const std::vector<HWND>& windows)
{
    switch (m_random.Below(6)) {
    case 0:
        return 0;
    case 1:
        return m_random.Between(-1, 10);
    case 2:
        return static_cast<LONG_PTR>(m_random.Below(0x10000));
    case 3:  // the id of a control
        return ::GetDlgCtrlID(m_random.Pick(windows));
    case 4:
        return reinterpret_cast<LONG_PTR>(m_random.Pick(windows));
    default:
        return static_cast<LONG_PTR>(m_random.Next());
    }
}

// Whatever the dialog was told before: after taking back more than there is, the whole maximum is free, not one less,
// and not as many as a count below zero would let in.
void RawMessages::ProbeCount(HWND dialog)
{
    if (!::GetDlgItem(dialog, IDC_SELECTVAR_TAB))
        return;
    ::SendMessageW(dialog, WM_SELECTVAR_UNSELECT, static_cast<WPARAM>(-1), 0);
    EXPECT_EQ(::SendMessageW(dialog, WM_SELECTVAR_SELECT, Maximum, 0), 1) << m_log.Describe();
    ::SendMessageW(dialog, WM_SELECTVAR_UNSELECT, Maximum, 0);
}

TEST(RandomMessages, NeitherCrashNorHangNorBreakARule)
{
    const long messages = endurance::Rounds(1000, 100'000);
    RawMessages raw(endurance::Seed());
    long visits = 0;
    while (raw.Given() < messages && !testing::Test::HasFailure()) {
        raw.SelectVariables();
        ++visits;
        for (const OptionalSection section : OptionsRoads) {
            raw.SetOptions(section);
            AfxGetApp()->OnIdle(0);
            ++visits;
        }
    }
    std::printf("%ld messages in %ld visits; the slowest took %ld ms; seed %llu; of them", raw.Given(), visits,
                raw.Log().SlowestMilliseconds(), static_cast<unsigned long long>(endurance::Seed()));
    for (const DialogKind kind : DialogKinds) {
        std::printf(" %s %ld", NameOf(kind), raw.Given(kind));
        EXPECT_GT(raw.Given(kind), messages / 100) << NameOf(kind);
    }
    std::printf("\n");
}

}  // namespace
