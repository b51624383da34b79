#include "PictureTips.h"

#include <commctrl.h>

#include <cwchar>
#include <string>

namespace {

// Or one sign, such as a cross.
bool ShowsPictureAlone(HWND window) noexcept
{
    wchar_t className[8]{};  // longer names are no buttons
    ::GetClassNameW(window, className, static_cast<int>(std::size(className)));
    return std::wcscmp(className, WC_BUTTONW) == 0 && ::GetWindowTextLengthW(window) <= 1;
}

}  // namespace

HWND MakePictureTips(HWND dialog, const AccessibleNames& names)
{
    HWND tips = nullptr;
    for (const auto& [window, name] : names.All()) {
        if (!ShowsPictureAlone(window))
            continue;
        if (!tips)
            tips = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                                     0, 0, 0, 0, dialog, nullptr, nullptr, nullptr);
        std::wstring text = name;
        TTTOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V1_SIZE;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = dialog;
        tool.uId = reinterpret_cast<UINT_PTR>(window);
        tool.lpszText = text.data();
        ::SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    return tips;
}
