// What the library remembers per thread. Made when a thread first needs it, deleted when the thread ends.
#pragma once

#include <afxcmn.h>

#include <utility>

#include "HandleMap.h"
#include "MessageCache.h"

struct ThreadState {
    HandleMap<CWnd, &CWnd::m_hWnd> windows;
    HandleMap<CMenu, &CMenu::m_hMenu> menus;
    HandleMap<CGdiObject, &CGdiObject::m_hObject> gdiObjects;
    HandleMap<CImageList, &CImageList::m_hImageList> imageLists;

    // What FromHandle has made and nobody owns.
    void DeleteTemporaries() noexcept
    {
        windows.DeleteTemporaries();
        menus.DeleteTemporaries();
        gdiObjects.DeleteTemporaries();
        imageLists.DeleteTemporaries();
    }

    MessageCache messageCache;
    MSG sentMessage{};    // the one being handled by a window procedure
    MSG pumpedMessage{};  // the one that the innermost message loop has fetched
    CWnd* windowInCreation = nullptr;
    HHOOK creationHook = nullptr;
    HWND lockedOutWindow = nullptr;  // its controls' notifications are held back during UpdateData
};

// Throws std::bad_alloc when the state cannot be made.
ThreadState& CurrentThread();
// Null when the thread has none.
ThreadState* CurrentThreadIfAny() noexcept;

// What the classes of handles do alike, each with the current thread's map of its kind.
template <class Object, auto Handle, HandleMap<Object, Handle> ThreadState::*Map>
struct Handles {
    using HandleType = typename HandleMap<Object, Handle>::HandleType;

    template <class Wanted = Object>
    static Wanted* FromHandle(HandleType handle)
    {
        return (CurrentThread().*Map).template FromHandle<Wanted>(handle);
    }
    // Returns FALSE for null or an object that has a handle already.
    static BOOL Attach(Object& object, HandleType handle)
    {
        if (!handle || object.*Handle)
            return FALSE;
        (CurrentThread().*Map).SetPermanent(handle, &object);
        object.*Handle = handle;
        return TRUE;
    }
    // Attaches a handle that has just been made; where that fails, also for lack of memory, the handle is destroyed.
    template <class Destroy>
    static BOOL AttachNew(Object& object, HandleType handle, Destroy destroy)
    {
        struct Made {
            HandleType handle;
            Destroy& destroy;
            ~Made()
            {
                if (handle)
                    destroy(handle);
            }
        } made{handle, destroy};
        if (!Attach(object, handle))
            return FALSE;
        made.handle = HandleType{};
        return TRUE;
    }
    static HandleType Detach(Object& object) noexcept
    {
        if (ThreadState* thread = CurrentThreadIfAny(); thread && object.*Handle)
            (thread->*Map).Remove(object.*Handle);
        return std::exchange(object.*Handle, HandleType{});
    }
};

using Windows = Handles<CWnd, &CWnd::m_hWnd, &ThreadState::windows>;
using Menus = Handles<CMenu, &CMenu::m_hMenu, &ThreadState::menus>;
using GdiObjects = Handles<CGdiObject, &CGdiObject::m_hObject, &ThreadState::gdiObjects>;
using ImageLists = Handles<CImageList, &CImageList::m_hImageList, &ThreadState::imageLists>;
