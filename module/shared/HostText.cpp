#include "HostText.h"

#include "KZLoadString.h"
#include "KZStringIds.h"

KZBasicString HostText(unsigned id)
{
    KZBasicString text;
    KZLoadString(id, text);
    return text;
}

KZBasicString SideText(zep::Side side)
{
    return HostText(side == zep::Side::Net ? KZS_NET_SIDE : KZS_LOAD_SIDE);
}
