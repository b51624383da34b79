#include "KZMainCfg.h"

XmlDocument* KZMainCfg::Get()
{
    static XmlDocument document(L"configuration");
    return &document;
}
