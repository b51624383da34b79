// Looks at the windows of other programs, so that a script with a mouse and a keyboard knows where to click and when to
// go on.
//
//   WindowProbe windows                  one line per visible top-level window: x y width height, state, title
//   WindowProbe wait TITLE               until a window whose title contains TITLE is shown and takes input
//   WindowProbe gone TITLE               until no such window is shown
//   WindowProbe point TITLE ID [ITEM]    the middle of a control, or of its tab or row ITEM, in screen coordinates
//   WindowProbe text TITLE ID            the control's text
//   WindowProbe focus                    the id of the control that has the focus
//   WindowProbe menu                     until a context menu is open
//   WindowProbe until TITLE ID STATE     until the control is shown, checked, unchecked, enabled, disabled or
//                                        focused; holds ITEMS=n rows (list view, list box); has TEXT=… in its text;
//                                        or has VALUE=… as its whole text
//   WindowProbe serve                    reads such commands from standard input, one per line, the words divided by
//   tabs,
//                                        and ends the answer to each with a line of "=" and its exit status
//
// TITLE "" is the window that takes input now, "=TITLE" one with exactly that title. Of several controls with the id,
// the one that is shown counts. Every wait ends after LimitMs with exit status 1 and the list of windows on standard
// error.
#include <windows.h>

#include <commctrl.h>
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "RemoteItem.h"

namespace {

constexpr ULONGLONG LimitMs = 15000;
constexpr DWORD PollMs = 20;

std::string Utf8(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    std::string bytes(
        static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr)), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                        nullptr);
    return bytes;
}

// WM_GETTEXT crosses processes; GetWindowText would answer the empty text for another process's edit box.
std::wstring TextOf(HWND window)
{
    DWORD_PTR length = 0;
    if (::SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 2000, &length) == 0)
        return {};
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    DWORD_PTR copied = 0;
    if (::SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                              2000, &copied) == 0)
        return {};
    text.resize(static_cast<size_t>(copied));
    return text;
}

// In Z order, the topmost first.
std::vector<HWND> TopLevelWindows()
{
    std::vector<HWND> windows;
    ::EnumWindows(
        [](HWND window, LPARAM list) -> BOOL {
            if (::IsWindowVisible(window))
                reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    return windows;
}

bool HasTitle(HWND window, std::wstring_view title)
{
    const std::wstring caption = TextOf(window);
    if (title.starts_with(L'='))
        return caption == title.substr(1);
    return !caption.empty() && caption.find(title) != std::wstring::npos;
}

HWND FindTopLevel(const std::wstring& title, bool enabledOnly)
{
    for (HWND window : TopLevelWindows()) {
        if (HasTitle(window, title) && (!enabledOnly || ::IsWindowEnabled(window)))
            return window;
    }
    return nullptr;
}

struct ControlSearch {
    int id;
    HWND found;
};

HWND FindControl(const std::wstring& title, int id)
{
    HWND top = FindTopLevel(title, true);
    ControlSearch search{id, nullptr};
    if (top != nullptr) {
        ::EnumChildWindows(
            top,
            [](HWND window, LPARAM data) -> BOOL {
                auto& wanted = *reinterpret_cast<ControlSearch*>(data);
                // Ids are words: the text of a message box has 0xFFFF, which is -1 as an int.
                if (LOWORD(::GetDlgCtrlID(window)) == wanted.id && ::IsWindowVisible(window))
                    wanted.found = window;
                return wanted.found == nullptr;
            },
            reinterpret_cast<LPARAM>(&search));
    }
    return search.found;
}

void PrintWindows(std::FILE* file)
{
    for (HWND window : TopLevelWindows()) {
        RECT rect = {};
        GetWindowRect(window, &rect);
        std::fprintf(file, "%ld %ld %ld %ld %s %s\n", rect.left, rect.top, rect.right - rect.left,
                     rect.bottom - rect.top, ::IsWindowEnabled(window) ? "enabled" : "disabled",
                     Utf8(TextOf(window)).c_str());
    }
}

int PrintFocus()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    if (!::GetGUIThreadInfo(::GetWindowThreadProcessId(::GetForegroundWindow(), nullptr), &info) ||
        info.hwndFocus == nullptr)
        return 1;
    std::printf("%d\n", LOWORD(::GetDlgCtrlID(info.hwndFocus)));
    return 0;
}

bool HasFocus(HWND control)
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(::GetWindowThreadProcessId(control, nullptr), &info) && info.hwndFocus == control;
}

LRESULT ItemCount(HWND list)
{
    wchar_t name[64] = {};
    ::GetClassNameW(list, name, static_cast<int>(std::size(name)));
    return ::SendMessageW(list, std::wstring_view(name) == WC_LISTVIEWW ? LVM_GETITEMCOUNT : LB_GETCOUNT, 0, 0);
}

// Throws std::invalid_argument for a state that it does not know, at once rather than when the time is over.
std::function<bool(HWND)> StateTest(const std::wstring& state)
{
    if (state == L"checked" || state == L"unchecked") {
        const LRESULT wanted = state == L"checked" ? BST_CHECKED : BST_UNCHECKED;
        return [wanted](HWND control) { return ::SendMessageW(control, BM_GETCHECK, 0, 0) == wanted; };
    }
    if (state == L"enabled" || state == L"disabled")
        return [wanted = state == L"enabled"](HWND control) { return (::IsWindowEnabled(control) != FALSE) == wanted; };
    if (state == L"shown")
        return [](HWND) { return true; };  // a hidden control is not found
    if (state == L"focused")
        return HasFocus;
    if (state.starts_with(L"ITEMS="))
        return [wanted = std::stoi(state.substr(6))](HWND control) { return ItemCount(control) == wanted; };
    if (state.starts_with(L"TEXT="))
        return [wanted = state.substr(5)](HWND control) { return TextOf(control).find(wanted) != std::wstring::npos; };
    if (state.starts_with(L"VALUE="))
        return [wanted = state.substr(6)](HWND control) { return TextOf(control) == wanted; };
    throw std::invalid_argument("unknown state " + Utf8(state));
}

int WaitFor(const std::function<bool()>& condition)
{
    const ULONGLONG end = ::GetTickCount64() + LimitMs;
    while (!condition()) {
        if (::GetTickCount64() > end) {
            std::fputs("WindowProbe: the condition did not come true; the windows are:\n", stderr);
            PrintWindows(stderr);
            return 1;
        }
        ::Sleep(PollMs);
    }
    return 0;
}

bool PrintPoint(HWND control, int item)
{
    RECT rect = {};
    if (item < 0) {
        GetWindowRect(control, &rect);
    } else if (const auto itemRect = RemoteItemRect(control, item)) {
        rect = *itemRect;
    } else {
        return false;
    }
    std::printf("%ld %ld\n", (rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    return true;
}

int Run(const std::vector<std::wstring>& arguments)
{
    const std::wstring& verb = arguments.at(0);
    if (verb == L"windows") {
        PrintWindows(stdout);
        return 0;
    }
    if (verb == L"focus")
        return PrintFocus();
    if (verb == L"menu")
        return WaitFor([] { return ::IsWindowVisible(::FindWindowW(L"#32768", nullptr)) != FALSE; });
    const std::wstring& title = arguments.at(1);
    if (verb == L"wait")
        return WaitFor([&] { return FindTopLevel(title, true) != nullptr; });
    if (verb == L"gone")
        return WaitFor([&] { return FindTopLevel(title, false) == nullptr; });

    const int id = std::stoi(arguments.at(2));
    std::function<bool(HWND)> test;
    if (verb == L"point") {
        test = [item = arguments.size() > 3 ? std::stoi(arguments[3]) : -1](HWND control) {
            return PrintPoint(control, item);
        };
    } else if (verb == L"text") {
        test = [](HWND control) { return std::puts(Utf8(TextOf(control)).c_str()) >= 0; };
    } else if (verb == L"until") {
        test = StateTest(arguments.at(3));
    } else {
        throw std::invalid_argument("unknown verb " + Utf8(verb));
    }
    return WaitFor([&] {
        HWND control = FindControl(title, id);
        return control != nullptr && test(control);
    });
}

int RunOrReport(const std::vector<std::wstring>& arguments)
{
    try {
        return Run(arguments);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "WindowProbe: %s\n", error.what());
        return 2;
    }
}

std::wstring Wide(std::string_view utf8)
{
    const int length = static_cast<int>(utf8.size());
    std::wstring text(static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, text.data(), static_cast<int>(text.size()));
    return text;
}

std::vector<std::wstring> Words(std::string_view line)
{
    std::vector<std::wstring> words;
    for (size_t end = line.find('\t'); end != std::string_view::npos; end = line.find('\t')) {
        words.push_back(Wide(line.substr(0, end)));
        line.remove_prefix(end + 1);
    }
    words.push_back(Wide(line));
    return words;
}

// A script asks some twenty times per test, and each start of a program takes far longer than the answer.
void Serve()
{
    for (std::string line; std::getline(std::cin, line);) {
        const int status = RunOrReport(Words(line));
        std::printf("=%d\n", status);
        std::fflush(stdout);
        std::fflush(stderr);
    }
}

}  // namespace

int wmain(int argc, wchar_t** argv)
{
    // Scripts write and want plain line ends.
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    const std::vector<std::wstring> arguments(argv + 1, argv + argc);
    if (arguments != std::vector<std::wstring>{L"serve"})
        return RunOrReport(arguments);
    Serve();
    return 0;
}
