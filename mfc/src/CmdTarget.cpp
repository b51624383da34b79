#include "MessageCache.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static constexpr AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static constexpr AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    // A notification carries its message in the high word; commands and control notifications have none there.
    const UINT packed = static_cast<UINT>(nCode);
    const UINT message = HIWORD(packed) != 0 ? HIWORD(packed) : WM_COMMAND;
    AFX_MSGARGS args{message, nID, 0, 0, static_cast<AFX_NOTIFY*>(pExtra), 0};
    for (const AFX_MSGMAP* map = GetMessageMap(); map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        const AFX_MSGMAP_ENTRY* entry = FindInTable(map->lpEntries, message, LOWORD(packed), nID);
        if (!entry)
            continue;
        if (pHandlerInfo) {
            pHandlerInfo->pTarget = this;
            return TRUE;
        }
        return entry->pfn(this, args);
    }
    return FALSE;
}
