#include "RemoteItem.h"

#include <commctrl.h>

#include <string_view>

namespace {

// A rectangle in the memory of the process that owns a window.
class RemoteRect {
public:
    explicit RemoteRect(HWND owner) noexcept
    {
        DWORD processId = 0;
        ::GetWindowThreadProcessId(owner, &processId);
        m_process = ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId);
        if (m_process != nullptr)
            m_address = ::VirtualAllocEx(m_process, nullptr, sizeof(RECT), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }
    ~RemoteRect()
    {
        if (m_address != nullptr)
            ::VirtualFreeEx(m_process, m_address, 0, MEM_RELEASE);
        if (m_process != nullptr)
            ::CloseHandle(m_process);
    }
    RemoteRect(const RemoteRect&) = delete;
    RemoteRect& operator=(const RemoteRect&) = delete;

    // Sends `message` with this rectangle, set to `value` before, and stores what the window made of it.
    bool Ask(HWND window, UINT message, int index, RECT& value) const noexcept
    {
        return m_address != nullptr && ::WriteProcessMemory(m_process, m_address, &value, sizeof value, nullptr) &&
               ::SendMessageW(window, message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(m_address)) != 0 &&
               ::ReadProcessMemory(m_process, m_address, &value, sizeof value, nullptr);
    }

private:
    HANDLE m_process = nullptr;
    void* m_address = nullptr;
};

UINT ItemRectMessage(HWND control) noexcept
{
    wchar_t name[64] = {};
    ::GetClassNameW(control, name, static_cast<int>(std::size(name)));
    const std::wstring_view className = name;
    if (className == WC_TABCONTROLW)
        return TCM_GETITEMRECT;
    return className == WC_LISTVIEWW ? LVM_GETITEMRECT : 0;
}

}  // namespace

std::optional<RECT> RemoteItemRect(HWND control, int index) noexcept
{
    const UINT message = ItemRectMessage(control);
    RECT rect = {LVIR_LABEL, 0, 0, 0};  // a list view reads from `left` which part is meant
    if (message == 0 || !RemoteRect(control).Ask(control, message, index, rect))
        return std::nullopt;
    ::MapWindowPoints(control, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}
