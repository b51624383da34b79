#include "PlatformNames.h"

#include <gtest/gtest.h>

#include <cwctype>

#include "Controls.h"

namespace kztest {

namespace {

DWORD StyleOf(HWND window)
{
    return static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE));
}

bool IsWorkable(HWND control)
{
    const std::wstring kind = ClassOf(control);
    const bool isFrame = kind == L"Button" && (StyleOf(control) & BS_TYPEMASK) == BS_GROUPBOX;
    return kind != L"Static" && kind != L"#32770" && kind != L"msctls_statusbar32" && !isFrame &&
           (StyleOf(control) & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

std::wstring LabelBefore(HWND control)
{
    for (HWND before = ::GetWindow(control, GW_HWNDPREV); before; before = ::GetWindow(before, GW_HWNDPREV)) {
        const DWORD style = StyleOf(before);
        if ((style & WS_VISIBLE) == 0)
            continue;
        if ((::SendMessageW(before, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0)
            return WithoutAccessKey(TextOf(before));
        if ((style & (WS_GROUP | WS_TABSTOP)) != 0)
            break;
    }
    return {};
}

wchar_t AccessKeyOf(const std::wstring& text)
{
    std::size_t at = text.find(L'&');
    while (at != std::wstring::npos && text[at + 1] == L'&')
        at = text.find(L'&', at + 2);
    return at == std::wstring::npos ? L'\0' : static_cast<wchar_t>(std::towupper(text[at + 1]));
}

bool ShowsAccessKey(HWND control)
{
    const std::wstring kind = ClassOf(control);
    return kind == L"Button" || (kind == L"Static" && (StyleOf(control) & SS_NOPREFIX) == 0);
}

void Take(std::wstring& keys, const std::wstring& text)
{
    const wchar_t key = AccessKeyOf(text);
    if (key == L'\0')
        return;
    EXPECT_EQ(keys.find(key), std::wstring::npos) << "twice: " << testing::PrintToString(text);
    keys += key;
}

void TakeFromControls(std::wstring& keys, HWND window)
{
    for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if ((StyleOf(child) & WS_VISIBLE) == 0)
            continue;
        if (ShowsAccessKey(child))
            Take(keys, TextOf(child));
        else if (ClassOf(child) == L"#32770")
            TakeFromControls(keys, child);
    }
}

}  // namespace

std::wstring WithoutAccessKey(std::wstring text)
{
    std::erase(text, L'&');
    return text;
}

std::vector<HWND> WorkableControls(HWND window)
{
    std::vector<HWND> controls;
    for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (IsWorkable(child))
            controls.push_back(child);
        if (ClassOf(child) == L"#32770")
            for (const HWND control : WorkableControls(child))
                controls.push_back(control);
    }
    return controls;
}

std::wstring PlatformName(HWND control, const std::map<HWND, std::wstring>& given)
{
    if (const auto found = given.find(control); found != given.end())
        return found->second;
    return ClassOf(control) == L"Button" ? WithoutAccessKey(TextOf(control)) : LabelBefore(control);
}

int ExpectNamesOfTheirOwn(HWND window, const std::map<HWND, std::wstring>& given)
{
    std::map<std::wstring, int> owners;
    for (const HWND control : WorkableControls(window)) {
        const int id = ::GetDlgCtrlID(control);
        const std::wstring name = PlatformName(control, given);
        EXPECT_FALSE(name.empty()) << "control " << id;
        const auto [owner, isNew] = owners.emplace(name, id);
        EXPECT_TRUE(isNew) << "control " << id << " is called as control " << owner->second << ": "
                           << testing::PrintToString(name);
    }
    return static_cast<int>(owners.size());
}

std::wstring ExpectAccessKeysOfTheirOwn(HWND window)
{
    std::wstring keys;
    const HMENU menu = ::GetMenu(window);
    for (int item = 0; menu && item < ::GetMenuItemCount(menu); ++item) {
        wchar_t text[64] = L"";
        ::GetMenuStringW(menu, static_cast<UINT>(item), text, 64, MF_BYPOSITION);
        Take(keys, text);
    }
    TakeFromControls(keys, window);
    return keys;
}

}  // namespace kztest
