#include "KZMainCfg.h"

XmlDocument* KZMainCfg::Get() noexcept
{
    static XmlDocument document(L"configuration");
    return &document;
}
