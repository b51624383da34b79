#include "ToolTips.h"

#include <commctrl.h>

#include "Controls.h"

namespace kztest {

namespace {

std::vector<HWND> AllTipsOf(HWND dialog)
{
    struct Search {
        HWND owner;
        std::vector<HWND> found;
    } search{dialog, {}};
    const auto look = [](HWND window, LPARAM into) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(into);
        if (::GetWindow(window, GW_OWNER) == wanted.owner && ClassOf(window) == TOOLTIPS_CLASSW)
            wanted.found.push_back(window);
        return TRUE;
    };
    ::EnumThreadWindows(::GetWindowThreadProcessId(dialog, nullptr), look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace

HWND TipsOf(HWND dialog)
{
    const std::vector<HWND> tips = AllTipsOf(dialog);
    return tips.empty() ? nullptr : tips.back();
}

std::map<HWND, std::wstring> TextsOf(HWND tips)
{
    std::map<HWND, std::wstring> texts;
    const auto count = ::SendMessageW(tips, TTM_GETTOOLCOUNT, 0, 0);
    for (LRESULT index = 0; index < count; ++index) {
        wchar_t text[256]{};
        TTTOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V1_SIZE;
        tool.lpszText = text;
        ::SendMessageW(tips, TTM_ENUMTOOLSW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&tool));
        texts[reinterpret_cast<HWND>(tool.uId)] = text;
    }
    return texts;
}

std::vector<std::wstring> TextsOfAllTips(HWND dialog)
{
    std::vector<std::wstring> texts;
    for (const HWND tips : AllTipsOf(dialog)) {
        for (const auto& [window, text] : TextsOf(tips))
            texts.push_back(text);
    }
    return texts;
}

}  // namespace kztest
