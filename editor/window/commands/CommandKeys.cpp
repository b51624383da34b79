#include "CommandKeys.h"

#include <algorithm>
#include <array>

#include "text/EditorText.h"

namespace {

struct NamedKey {
    WORD code;
    unsigned text;
};

constexpr NamedKey Named[] = {
    {VK_INSERT, IDS_KEY_INSERT}, {VK_DELETE, IDS_KEY_DELETE}, {VK_RETURN, IDS_KEY_ENTER},
    {VK_UP, IDS_KEY_UP},         {VK_DOWN, IDS_KEY_DOWN},
};

// What an edit box does itself.
constexpr KeyStroke EditKeys[] = {
    {FCONTROL, 'Z'}, {FCONTROL, 'X'}, {FCONTROL, 'C'}, {FCONTROL, 'V'},
    {FCONTROL, 'A'}, {0, VK_DELETE},  {0, VK_INSERT},  {FCONTROL, 'Y'},
};

bool IsHeld(int key)
{
    return ::GetKeyState(key) < 0;
}

bool IsEdit(HWND window)
{
    std::array<wchar_t, 16> name{};
    ::GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return ::lstrcmpiW(name.data(), L"Edit") == 0;
}

std::wstring CodeText(WORD code)
{
    for (const NamedKey& key : Named)
        if (key.code == code)
            return EditorText(key.text);
    if (code >= VK_F1 && code <= VK_F12)
        return L"F" + std::to_wstring(code - VK_F1 + 1);
    return {static_cast<wchar_t>(code)};
}

}  // namespace

std::wstring KeyText(const KeyStroke& key)
{
    std::wstring text;
    if (key.code == 0)
        return text;
    if ((key.held & FCONTROL) != 0)
        text += EditorText(IDS_KEY_CTRL) + L"+";
    if ((key.held & FSHIFT) != 0)
        text += EditorText(IDS_KEY_SHIFT) + L"+";
    if ((key.held & FALT) != 0)
        text += EditorText(IDS_KEY_ALT) + L"+";
    return text + CodeText(key.code);
}

const WindowCommand* CommandOfKey(const MSG& message)
{
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN)
        return nullptr;
    const KeyStroke pressed{static_cast<BYTE>((IsHeld(VK_CONTROL) ? FCONTROL : 0) | (IsHeld(VK_SHIFT) ? FSHIFT : 0) |
                                              (IsHeld(VK_MENU) ? FALT : 0)),
                            static_cast<WORD>(message.wParam)};
    const bool isEdits =
        IsEdit(message.hwnd) && std::find(std::begin(EditKeys), std::end(EditKeys), pressed) != std::end(EditKeys);
    for (const WindowCommand& command : WindowCommands()) {
        const bool counts = command.keyControl == 0 ? !isEdits : ::GetDlgCtrlID(message.hwnd) == command.keyControl;
        if (command.id != 0 && command.key.code != 0 && command.key == pressed && counts)
            return &command;
    }
    return nullptr;
}
