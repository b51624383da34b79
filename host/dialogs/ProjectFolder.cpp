#include "KZMainCfg.h"

namespace {

KZBasicString& Folder()
{
    static KZBasicString folder;
    return folder;
}

}  // namespace

KZBasicString KZMainCfg::ProjectFolder()
{
    return Folder();
}

void KZMainCfg::SetProjectFolder(const KZBasicString& folder)
{
    Folder() = folder;
}
