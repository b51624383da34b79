#include "KZMainCfg.h"

namespace {

KZBasicString& Folder()
{
    static KZBasicString folder;
    return folder;
}

}  // namespace

XmlDocument* KZMainCfg::Get()
{
    static XmlDocument document(L"configuration");
    return &document;
}

KZBasicString KZMainCfg::ProjectFolder()
{
    return Folder();
}

void KZMainCfg::SetProjectFolder(const KZBasicString& folder)
{
    Folder() = folder;
}
