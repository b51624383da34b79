#include "ChildPage.h"

void PostToContainer(const CWnd& page, WPARAM command)
{
    if (const CWnd* container = page.GetParent())
        ::PostMessageW(container->m_hWnd, WM_COMMAND, command, 0);
}

bool ForwardPageCommand(const CWnd& container, WPARAM wParam, LPARAM lParam)
{
    const auto control = reinterpret_cast<HWND>(lParam);
    if (!control)
        return false;
    const HWND page = ::GetParent(control);
    if (!page || page == container.m_hWnd || !::IsChild(container.m_hWnd, page))
        return false;
    ::SendMessageW(page, WM_COMMAND, wParam, lParam);
    return true;
}
