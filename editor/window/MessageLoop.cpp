#include "MessageLoop.h"

void RunMessageLoop(HWND window, HACCEL accelerators)
{
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (accelerators && ::TranslateAcceleratorW(window, accelerators, &message))
            continue;
        if (::IsDialogMessageW(window, &message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

bool RouteEmbeddedCommand(HWND window, WPARAM wParam)
{
    const HWND focus = ::GetFocus();
    const HWND owner = focus ? ::GetParent(focus) : nullptr;
    const bool embedded = owner && owner != window && ::IsChild(window, owner);
    if (!embedded || ::GetDlgCtrlID(focus) != LOWORD(wParam))
        return false;
    ::SendMessageW(owner, WM_COMMAND, wParam, reinterpret_cast<LPARAM>(focus));
    return true;
}
