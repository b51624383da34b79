#include "KZLoadString.h"

#include <afxwin.h>

#include "../setup/HostModule.h"

unsigned short KZResourceLanguage(KZLanguage language) noexcept
{
    return language == KZLanguage::Spanish ? MAKELANGID(LANG_SPANISH, SUBLANG_SPANISH_MODERN)
                                           : MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
}

bool KZLoadString(unsigned id, KZBasicString& text)
{
    text.Clear();
    // Resources have no higher ids: Windows would take such a one for another.
    if (id > 0xFFFF)
        return false;
    CString found;
    for (const KZLanguage language : {KZQuorvelantaSetup::Get()->Language(), KZLanguage::English}) {
        if (found.LoadString(HostModule(), id, KZResourceLanguage(language))) {
            text.Assign(found.GetString());
            return true;
        }
    }
    return false;
}

KZBasicString KZLoadString(unsigned id)
{
    KZBasicString text;
    KZLoadString(id, text);
    return text;
}
