// Names for screen readers, for controls that neither their own text nor a label in front of them names.
#pragma once

#include <windows.h>

#include <map>
#include <string>

struct IAccPropServices;

// Gives windows names and takes the names back. A system that does not offer the service, as Wine, leaves the windows
// as they are; the names are still known here.
class AccessibleNames {
public:
    AccessibleNames() noexcept;
    ~AccessibleNames();
    AccessibleNames(const AccessibleNames&) = delete;
    AccessibleNames& operator=(const AccessibleNames&) = delete;

    // Names a window, or names it anew; null is passed over. Throws std::bad_alloc.
    void Set(HWND window, const std::wstring& name);
    // To be called before the windows are destroyed.
    void Clear() noexcept;

    [[nodiscard]] const std::map<HWND, std::wstring>& All() const noexcept { return m_names; }

private:
    bool m_usesCom;
    IAccPropServices* m_service = nullptr;
    std::map<HWND, std::wstring> m_names;
};
