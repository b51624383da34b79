// CMenu. Part of afxwin.h. The members that a dialog's menu bar needs.
#pragma once

#include <afx.h>

class KZMFC_API CMenu : public CObject {
    DECLARE_DYNAMIC(CMenu)

public:
    CMenu() noexcept = default;
    ~CMenu() override;  // destroys a menu it still has attached

    HMENU m_hMenu = nullptr;

    static CMenu* PASCAL FromHandle(HMENU hMenu);
    static void PASCAL DeleteTempMap();

    operator HMENU() const noexcept { return m_hMenu; }
    [[nodiscard]] HMENU GetSafeHmenu() const noexcept { return m_hMenu; }
    BOOL Attach(HMENU hMenu);
    HMENU Detach();
    BOOL LoadMenu(LPCWSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenuW(MAKEINTRESOURCEW(nIDResource)); }
    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR lpszNewItem = nullptr)
    {
        return ::AppendMenuW(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL EnableMenuItem(UINT nIDEnableItem, UINT nEnable) { return ::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable); }
    DWORD CheckMenuItem(UINT nIDCheckItem, UINT nCheck) { return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck); }
    [[nodiscard]] int GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
    [[nodiscard]] UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    [[nodiscard]] UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    [[nodiscard]] CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }
};
