// Names for screen readers, for controls that no label in front of them names: the boxes of a grid.
#pragma once

#include <afxwin.h>

#include <vector>

#include "KZBasicString.h"

struct IAccPropServices;

// Gives windows names and takes the names back. A system that does not offer the service leaves the windows as they
// are.
class AccessibleNames {
public:
    AccessibleNames() noexcept;
    ~AccessibleNames();
    AccessibleNames(const AccessibleNames&) = delete;
    AccessibleNames& operator=(const AccessibleNames&) = delete;

    void Set(HWND window, const KZBasicString& name);
    // To be called before the windows are destroyed.
    void Clear() noexcept;

private:
    bool m_usesCom;
    IAccPropServices* m_service = nullptr;
    std::vector<HWND> m_windows;
};
