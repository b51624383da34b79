#include "Workers.h"

#include "KZXmlDocument.h"
#include "SavedContent.h"
#include "StoredChanges.h"
#include "project/Recovery.h"

namespace crash {

namespace {

void SaveDocuments(const std::filesystem::path& file, long last, const Report& report)
{
    XmlDocument document(L"configuration");
    for (long number = last + 1; document.Parse(ContentOf(number)) && document.Save(file); ++number)
        report(number);
}

void StoreChanges(const std::filesystem::path& folder, long last, const Report& report)
{
    plant::RecoveryFile file(plant::RealDisk(), folder);
    for (long number = last + 1;; ++number) {
        file.Store(ChangesOf(number));
        report(number);
    }
}

}  // namespace

const Worker DocumentSaver{"save", SaveDocuments};
const Worker ChangeStorer{"store", StoreChanges};

}  // namespace crash
