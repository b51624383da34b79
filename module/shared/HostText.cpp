#include "HostText.h"

#include "KZLoadString.h"

KZBasicString HostText(unsigned id)
{
    KZBasicString text;
    KZLoadString(id, text);
    return text;
}
