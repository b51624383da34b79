// CCmdTarget and the tables of message maps. Part of afxwin.h.
//
// Difference from MFC: a table entry holds a function that unpacks the message and calls the handler, which the
// compiler makes from the handler itself. MFC stores the handler cast to one common type and a signature number beside
// it; here a handler of the wrong type does not compile. Type-library, OLE and event-sink maps do not exist.
#pragma once

#include <afx.h>

class CCmdTarget;

struct AFX_NOTIFY {
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
};

// What a map entry's function gets: a window message, or a command with its id and, for WM_NOTIFY, its AFX_NOTIFY.
struct AFX_MSGARGS {
    UINT nMessage;
    UINT nID;
    WPARAM wParam;
    LPARAM lParam;
    AFX_NOTIFY* pNotify;
    LRESULT lResult;
};

// Returns FALSE when the handler wants the search to go on.
using AFX_PMSG = BOOL (*)(CCmdTarget* pTarget, AFX_MSGARGS& args);

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;    // control code, or the low word of a WM_NOTIFY code
    UINT nID;      // first control id, 0 for window messages
    UINT nLastID;  // last control id
    AFX_PMSG pfn;  // null ends a table
};

struct AFX_MSGMAP {
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();  // null for the root
    const AFX_MSGMAP_ENTRY* lpEntries;
};

inline constexpr int CN_COMMAND = 0;

class KZMFC_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)

public:
    // Routes a command or notification through this object's message maps.
    //   nCode         the notification code; the high word is the message (WM_NOTIFY), 0 for WM_COMMAND
    //   pExtra        an AFX_NOTIFY for WM_NOTIFY, otherwise null
    //   pHandlerInfo  when given, the handler is only looked up, not called
    // Returns TRUE when a handler was found and did not ask to go on.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    CCmdTarget() noexcept = default;

    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
};

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                               \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                                  \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap()                                                             \
    {                                                                                                                  \
        [[maybe_unused]] typedef theClass ThisClass;                                                                   \
        typedef baseClass TheBaseClass;                                                                                \
        static constexpr AFX_MSGMAP_ENTRY _messageEntries[] = {

// The base map is asked for through a function of this library: an imported address is no constant.
#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, nullptr                                                                                            \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static constexpr AFX_MSGMAP messageMap = {[]() -> const AFX_MSGMAP* { return TheBaseClass::GetThisMessageMap(); }, \
                                              _messageEntries};                                                        \
    return &messageMap;                                                                                                \
    }
