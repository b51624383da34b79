#include "KZMainCfg.h"

namespace {

KZBasicString& Folder()
{
    static KZBasicString folder;
    return folder;
}

KZDocumentStore* documentStore = nullptr;

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

KZDocumentStore* KZMainCfg::DocumentStore() noexcept
{
    return documentStore;
}

void KZMainCfg::SetDocumentStore(KZDocumentStore* store) noexcept
{
    documentStore = store;
}
