#include "Controls.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <stdexcept>

#include "Conditions.h"

namespace kztest {

namespace {

constexpr int MessageTextId = 0xFFFF;  // the text of a message box

HWND ControlOf(HWND dialog, int id)
{
    const HWND control = ::GetDlgItem(dialog, id);
    if (!control)
        throw std::runtime_error("the dialog has no control " + std::to_string(id));
    return control;
}

bool IsMessageBox(HWND window)
{
    return window && ::GetDlgItem(window, MessageTextId) != nullptr;
}

struct DialogSearch {
    const std::vector<HWND>& ignored;
    HWND found;
};

BOOL CALLBACK ExamineWindow(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<DialogSearch*>(parameter);
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    const bool matches = process == ::GetCurrentProcessId() && ::IsWindowVisible(window) && ::IsWindowEnabled(window) &&
                         ClassOf(window) == L"#32770" &&
                         std::find(search.ignored.begin(), search.ignored.end(), window) == search.ignored.end();
    if (matches)
        search.found = window;
    return !matches;
}

}  // namespace

HWND TopDialog(const std::vector<HWND>& ignored)
{
    DialogSearch search{ignored, nullptr};
    ::EnumWindows(ExamineWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND WaitForDialog(const std::vector<HWND>& ignored)
{
    HWND dialog = nullptr;
    if (!WaitUntil([&] { return (dialog = TopDialog(ignored)) != nullptr; }))
        throw std::runtime_error("no dialog was opened");
    return dialog;
}

void WaitUntilGone(HWND window)
{
    if (!WaitUntil([&] { return !::IsWindow(window); }))
        throw std::runtime_error("a window was not closed");
}

std::wstring TextOf(HWND window)
{
    // By message: GetWindowText does not ask the control itself when another thread owns it.
    const auto length = static_cast<std::size_t>(::SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
    std::wstring text(length + 1, L'\0');
    const auto copied = ::SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(copied));
    return text;
}

std::wstring TextOf(HWND dialog, int id)
{
    return TextOf(ControlOf(dialog, id));
}

std::wstring ClassOf(HWND window)
{
    wchar_t name[128];
    return {name, static_cast<std::size_t>(::GetClassNameW(window, name, static_cast<int>(std::size(name))))};
}

void SetText(HWND dialog, int id, const std::wstring& text)
{
    ::SendMessageW(ControlOf(dialog, id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void Click(HWND dialog, int id)
{
    ::SendMessageW(ControlOf(dialog, id), BM_CLICK, 0, 0);
}

void PostClick(HWND dialog, int id)
{
    ::PostMessageW(ControlOf(dialog, id), BM_CLICK, 0, 0);
}

bool IsChecked(HWND dialog, int id)
{
    return ::SendMessageW(ControlOf(dialog, id), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

bool IsEnabled(HWND dialog, int id)
{
    return ::IsWindowEnabled(ControlOf(dialog, id)) != FALSE;
}

HWND ControlIn(HWND window, int id)
{
    struct Search {
        int id;
        HWND found;
    } search{id, nullptr};
    const auto look = [](HWND control, LPARAM data) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(data);
        if (::GetDlgCtrlID(control) == wanted.id)
            wanted.found = control;
        return wanted.found == nullptr;
    };
    ::EnumChildWindows(window, look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<int> ChildIds(HWND dialog)
{
    std::vector<int> ids;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        ids.push_back(LOWORD(::GetDlgCtrlID(child)) == 0xFFFF ? -1 : ::GetDlgCtrlID(child));
    return ids;
}

HWND FocusedWindow(HWND dialog)
{
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(dialog, nullptr), &info);
    return info.hwndFocus;
}

int FocusedId(HWND dialog)
{
    const HWND focused = FocusedWindow(dialog);
    return focused ? ::GetDlgCtrlID(focused) : 0;
}

void PressKey(HWND dialog, WORD key)
{
    constexpr LPARAM Pressed = 1;
    constexpr LPARAM Released = 0xC0000001;
    const HWND focused = FocusedWindow(dialog);
    ::PostMessageW(focused, WM_KEYDOWN, key, Pressed);
    ::PostMessageW(focused, WM_KEYUP, key, Released);
}

void TypeText(HWND dialog, const std::wstring& text)
{
    const HWND focused = FocusedWindow(dialog);
    for (const wchar_t character : text)
        ::PostMessageW(focused, WM_CHAR, character, 1);
}

std::wstring AnswerMessageBox(int button)
{
    HWND box = nullptr;
    if (!WaitUntil([&] { return IsMessageBox(box = TopDialog()); }))
        throw std::runtime_error("no message box was opened");
    const std::wstring text = TextOf(box, MessageTextId);
    PostClick(box, button);
    WaitUntilGone(box);
    return text;
}

void AnswerMessageBox(const std::wstring& expectedText, int button)
{
    EXPECT_EQ(AnswerMessageBox(button), expectedText);
}

std::wstring TabText(HWND tab, int index)
{
    std::array<wchar_t, 256> text{};
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    ::SendMessageW(tab, TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    return text.data();
}

}  // namespace kztest
