// CMenu. Part of afxwin.h. The members that a window's menu bar needs.
#pragma once

#include <afx.h>

class KZMFC_API CMenu : public CObject {
    DECLARE_DYNAMIC(CMenu)

public:
    CMenu() noexcept = default;
    ~CMenu() override;  // destroys a menu it still has attached

    HMENU m_hMenu = nullptr;

    static CMenu* PASCAL FromHandle(HMENU hMenu);

    operator HMENU() const noexcept { return m_hMenu; }
    // Returns FALSE for null or an object that has a menu already.
    BOOL Attach(HMENU hMenu);
    HMENU Detach();
    BOOL DestroyMenu();

    // nEnable: MF_ENABLED or MF_GRAYED. Returns what it was before, -1 when there is no such item.
    BOOL EnableMenuItem(UINT nIDEnableItem, UINT nEnable) { return ::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable); }
};
