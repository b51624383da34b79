// What the library remembers per thread. Made when a thread first needs it, deleted when the thread ends.
#pragma once

#include <afxcmn.h>

#include "HandleMap.h"
#include "MessageCache.h"

struct ThreadState {
    HandleMap<CWnd, &CWnd::m_hWnd> windows;
    HandleMap<CMenu, &CMenu::m_hMenu> menus;
    HandleMap<CDC, &CDC::m_hDC> contexts;
    HandleMap<CGdiObject, &CGdiObject::m_hObject> gdiObjects;
    HandleMap<CImageList, &CImageList::m_hImageList> imageLists;

    MessageCache messageCache;
    MSG sentMessage{};    // the one being handled by a window procedure
    MSG pumpedMessage{};  // the one that the innermost message loop has fetched
    CWnd* windowInCreation = nullptr;
    HHOOK creationHook = nullptr;
    HWND lockedOutWindow = nullptr;  // its controls' notifications are held back during UpdateData
    int waitCursors = 0;
    HCURSOR cursorBeforeWait = nullptr;
};

// Throws std::bad_alloc when the state cannot be made.
ThreadState& CurrentThread();
// Null when the thread has none.
ThreadState* CurrentThreadIfAny() noexcept;
