#include "SelectionSession.h"

#include <commctrl.h>

#include "SelectVarControls.h"

namespace {

constexpr int FirstCaptions[] = {IDC_GENERAL_CAPTION, IDC_POWER_CAPTION,
                                 IDC_HARMONIC_CAPTION};  // what tells the pages apart
constexpr int Maxima[] = {0, 0, 0, 0, 0, 1, 2, 10, 78, 100, 110, 117, 118, 118, 118, 118};
constexpr std::size_t Closing = 120;
constexpr long ComparedEvery =
    8;  // actions; a wrong box stays wrong, and looking at all of them takes longer than a click

// What a host's list may hold: names of this device and of others, names that mark a neighbour, names that mark
// nothing.
std::list<KZBasicString> RandomList(Random& random)
{
    constexpr const wchar_t* Entries[] = {L"DEV1.HZIN",
                                          L"DEV1.HZIL",
                                          L"DEV1.VI1N",
                                          L"DEV1.AI2L",
                                          L"DEV1.DAI3L",
                                          L"DEV1.PFI3N",
                                          L"DEV1.API1N",
                                          L"DEV1.ARM1A1N",
                                          L"DEV1.ARM2A1N",
                                          L"DEV1.ARM4A3L",
                                          L"DEV1.ARM0A2N",
                                          L"DEV1.ARM25A3L",
                                          L"DEV2.ARM3A1N",
                                          L"dev1.HZIN",
                                          L"DEV1.ARM27A1N",
                                          L"DEV1.VI2L",
                                          L"DEV1.",
                                          L"",
                                          L".",
                                          L"DEV1",
                                          L"DEV1.ARM3A4N",
                                          L"DEV1.QQI1N",
                                          L"DEV11.HZIN",
                                          L"\u00e4\u00f6.HZIN"};
    std::list<KZBasicString> list;
    const int count = random.OneIn(3) ? 0 : random.Between(1, 12);
    for (int entry = 0; entry < count; ++entry)
        list.emplace_back(random.Pick(Entries));
    return list;
}

}  // namespace

SelectionSession::SelectionSession(ZepProject& project, Random& random, EventLog& log, long actions)
    : m_project(project), m_random(random), m_log(log), m_actions(actions), m_maximum(random.Pick(Maxima)),
      m_names(RandomList(random)), m_chosenBefore(Texts(m_names)), m_model(L"DEV1", m_chosenBefore, m_maximum),
      m_user(random, log, Closing), m_loop([this] { Step(); })
{
    s_current = this;
}

SelectionSession::~SelectionSession()
{
    s_current = nullptr;
}

std::string SelectionSession::Run()
{
    m_log.Add("open the selection dialog", 0, m_maximum);
    const bool confirmed = m_project.Select(m_names, m_maximum);
    if (!FollowPresses())
        Fail("the last press went over the maximum");
    if (Texts(m_names) != (confirmed ? m_model.Names() : m_chosenBefore))
        Fail("the list after the dialog is another one");
    if (confirmed && m_maximum != 0 && static_cast<int>(m_names.size()) > m_maximum)
        Fail("the list is longer than the maximum");
    return m_difference;
}

void SelectionSession::Step()
{
    const HWND top = TopDialogOfThread();
    if (!top)
        return;
    if (IsMessageBox(top))
        MeetMessage(top);
    else
        MeetDialog(top);
    m_loop.Continue();
}

void SelectionSession::MeetDialog(HWND dialog)
{
    if (!m_pages[0].window)
        FindPages(dialog);
    if (m_clicked && (m_presses.size() != 1 || m_presses[0].second != ::GetDlgCtrlID(m_clicked)))
        Fail("a click did not reach its page");
    m_clicked = nullptr;
    if (!FollowPresses())
        Fail("a press over the maximum was not refused");
    if (m_actions % ComparedEvery == 0)
        CompareBoxes();
    ComparePages(dialog);
    if (m_actions-- > 0 && m_difference.empty())
        m_clicked = m_user.Act(dialog);
    else
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

void SelectionSession::MeetMessage(HWND box)
{
    m_clicked = nullptr;
    if (FollowPresses())
        Fail("a message though nothing went over the maximum");
    ++m_refusals;
    m_user.Answer(box);
}

void SelectionSession::FindPages(HWND dialog)
{
    for (const HWND window : DescendantsOf(dialog)) {
        for (std::size_t page = 0; page < PageCount; ++page) {
            if (!::GetDlgItem(window, FirstCaptions[page]))
                continue;
            m_pages[page].window = window;
            m_pages[page].procedure = reinterpret_cast<WNDPROC>(
                ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&PageProcedure)));
        }
    }
    for (const SelectionModel::Box& box : m_model.Boxes())
        m_boxes.push_back(::GetDlgItem(m_pages[static_cast<std::size_t>(box.page)].window, box.id));
}

bool SelectionSession::FollowPresses()
{
    bool allowed = true;
    for (const auto& [page, id] : std::exchange(m_presses, {}))
        allowed = m_model.Press(page, id);
    return allowed;
}

void SelectionSession::CompareBoxes()
{
    for (std::size_t index = 0; index < m_boxes.size(); ++index) {
        const SelectionModel::Box& box = m_model.Boxes()[index];
        const bool checked = ::SendMessageW(m_boxes[index], BM_GETCHECK, 0, 0) == BST_CHECKED;
        if (checked != box.checked || (::IsWindowEnabled(m_boxes[index]) != FALSE) != box.enabled) {
            Fail("box " + std::to_string(box.id) + " should be " + (box.checked ? "checked" : "clear") + " and " +
                 (box.enabled ? "enabled" : "disabled"));
            return;
        }
    }
}

void SelectionSession::ComparePages(HWND dialog)
{
    const auto tab = static_cast<std::size_t>(::SendDlgItemMessageW(dialog, IDC_SELECTVAR_TAB, TCM_GETCURSEL, 0, 0));
    for (std::size_t page = 0; page < PageCount; ++page)
        if ((::IsWindowVisible(m_pages[page].window) != FALSE) != (page == tab))
            Fail("page " + std::to_string(page) + " is wrongly shown or hidden");
}

void SelectionSession::Fail(const std::string& difference)
{
    if (m_difference.empty())
        m_difference = difference;
}

LRESULT CALLBACK SelectionSession::PageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    int number = 0;
    while (s_current->m_pages[static_cast<std::size_t>(number)].window != window)
        ++number;
    const WNDPROC procedure = s_current->m_pages[static_cast<std::size_t>(number)].procedure;
    const int id = LOWORD(wParam);
    if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED && id != IDOK && id != IDCANCEL)
        s_current->m_presses.emplace_back(number, id);
    if (message == WM_NCDESTROY)
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    return ::CallWindowProcW(procedure, window, message, wParam, lParam);
}
