#include "DialogUser.h"

#include <commctrl.h>

#include <string>

#include "StepLoop.h"

namespace {

// What users type into fields for numbers, by intent and by accident.
constexpr const wchar_t* Texts[] = {L"",       L"0",        L"1",          L"5",          L"8",
                                    L"9",      L"42",       L"99.9",       L"99,9",       L"100",
                                    L"200",    L"201",      L"-1",         L"-0.9",       L"0,95",
                                    L"1e5",    L"nan",      L"inf",        L"x",          L"1 000",
                                    L"1.2.3",  L"0x10",     L" 7 ",        L"--3",        L"\u00bd",
                                    L"\u0663", L"\u202e12", L"\U0001f50c", L"2147483648", L"99999999999999999999",
                                    L"%s%n"};

constexpr WORD Keys[] = {VK_TAB,  VK_TAB, VK_SPACE,  VK_SPACE, VK_SPACE, VK_DOWN, VK_UP, VK_LEFT, VK_RIGHT,
                         VK_HOME, VK_END, VK_DELETE, VK_BACK,  VK_PRIOR, VK_NEXT, VK_F1, L'A'};

constexpr WORD ListKeys[] = {VK_DOWN, VK_DOWN, VK_UP, VK_SPACE, VK_SPACE, VK_HOME, VK_END};

constexpr LPARAM Pressed = 1;
constexpr LPARAM Released = 0xC0000001;

bool ClosesDialog(HWND control)
{
    const int id = ::GetDlgCtrlID(control);
    return id == IDOK || id == IDCANCEL;
}

}  // namespace

HWND DialogUser::Act(HWND dialog)
{
    if (m_random.OneIn(m_closing)) {
        Close(dialog);
        return nullptr;
    }
    if (m_random.OneIn(6)) {
        PressKey(dialog);
        return nullptr;
    }
    constexpr int Attempts = 30;
    const std::vector<HWND> controls = DescendantsOf(dialog);
    for (int attempt = 0; attempt < Attempts && !controls.empty(); ++attempt) {
        const HWND control = m_random.Pick(controls);
        if (IsReachable(control) && !IsOfClass(control, L"#32770") && !ClosesDialog(control))
            return UseControl(control);
    }
    Close(dialog);
    return nullptr;
}

void DialogUser::Answer(HWND messageBox)
{
    std::vector<int> answers;
    for (const int id : {IDOK, IDYES, IDNO, IDCANCEL})
        if (::GetDlgItem(messageBox, id))
            answers.push_back(id);
    const int answer = m_random.Pick(answers);
    m_log.Add("answer a message", answer);
    ::PostMessageW(messageBox, WM_COMMAND, static_cast<WPARAM>(answer), 0);
}

void DialogUser::Close(HWND dialog)
{
    switch (m_random.Below(6)) {
    case 0:
        m_log.Add("Enter");
        Type(::GetFocus(), VK_RETURN);
        break;
    case 1:
        m_log.Add("Escape");
        Type(::GetFocus(), VK_ESCAPE);
        break;
    case 2:
        m_log.Add("close the window");
        ::PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
        break;
    case 3:
        m_log.Add("click Cancel");
        ::PostMessageW(::GetDlgItem(dialog, IDCANCEL), BM_CLICK, 0, 0);
        break;
    default:
        m_log.Add("click OK");
        ::PostMessageW(::GetDlgItem(dialog, IDOK), BM_CLICK, 0, 0);
        break;
    }
}

void DialogUser::PressKey(HWND dialog)
{
    const HWND focus = ::GetFocus();
    if (!focus || (focus != dialog && !::IsChild(dialog, focus))) {
        m_log.Add("focus the next control");
        ::PostMessageW(dialog, WM_NEXTDLGCTL, 0, FALSE);
        return;
    }
    const WORD key = m_random.Pick(Keys);
    m_log.Add("key", ::GetDlgCtrlID(focus), key);
    Type(focus, key);
}

HWND DialogUser::UseControl(HWND control)
{
    const int id = ::GetDlgCtrlID(control);
    if (IsOfClass(control, L"Button")) {
        m_log.Add("click", id);
        ::PostMessageW(control, BM_CLICK, 0, 0);
        return control;
    }
    if (IsOfClass(control, L"Edit"))
        TypeInto(control);
    else if (IsOfClass(control, WC_TABCONTROLW))
        ClickTab(control);
    else if (IsOfClass(control, L"ComboBox")) {
        m_log.Add("choose from a list", id);
        ::PostMessageW(control, WM_SETFOCUS, 0, 0);
        Type(control, m_random.OneIn(2) ? VK_DOWN : VK_UP);
    } else if (IsOfClass(control, WC_LISTVIEWW)) {
        const WORD key = m_random.Pick(ListKeys);
        m_log.Add("key in a list", id, key);
        ::PostMessageW(control, WM_SETFOCUS, 0, 0);
        Type(control, key);
    } else {
        m_log.Add("click beside the controls", id);
        ::PostMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1));
        ::PostMessageW(control, WM_LBUTTONUP, 0, MAKELPARAM(1, 1));
    }
    return nullptr;
}

void DialogUser::ClickTab(HWND tab)
{
    const auto count = static_cast<int>(::SendMessageW(tab, TCM_GETITEMCOUNT, 0, 0));
    const int item = count > 0 ? m_random.Between(0, count - 1) : 0;
    RECT place{};
    ::SendMessageW(tab, TCM_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&place));
    m_log.Add("click a tab", ::GetDlgCtrlID(tab), item);
    const LPARAM point = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    ::PostMessageW(tab, WM_LBUTTONDOWN, MK_LBUTTON, point);
    ::PostMessageW(tab, WM_LBUTTONUP, 0, point);
}

void DialogUser::TypeInto(HWND edit)
{
    const std::size_t choice = m_random.Below(std::size(Texts));
    m_log.Add("type text number", ::GetDlgCtrlID(edit), static_cast<long long>(choice));
    ::PostMessageW(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    ::PostMessageW(edit, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
    if (!m_random.OneIn(4))
        ::PostMessageW(edit, EM_SETSEL, 0, -1);  // types over what is there
    for (const wchar_t character : std::wstring(Texts[choice]))
        ::PostMessageW(edit, WM_CHAR, character, 1);
}

void DialogUser::Type(HWND window, WORD key)
{
    ::PostMessageW(window, WM_KEYDOWN, key, Pressed);
    ::PostMessageW(window, WM_KEYUP, key, Released);
}
