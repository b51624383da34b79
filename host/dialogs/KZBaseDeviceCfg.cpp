#include "KZBaseDeviceCfg.h"

#include <filesystem>

#include "../strings/StringIds.h"
#include "ExceptionGuard.h"
#include "KZDocumentFileName.h"
#include "KZDocumentStore.h"
#include "KZLoadString.h"
#include "KZMainCfg.h"

namespace fs = std::filesystem;

namespace {

constexpr wchar_t RootName[] = L"device";
constexpr wchar_t FolderName[] = L"devices";

bool IsMissingOrEmpty(const fs::path& file)
{
    std::error_code error;
    if (!fs::exists(file, error))
        return !error;
    return fs::is_regular_file(file, error) && fs::file_size(file, error) == 0 && !error;
}

fs::path FileOf(const KZBasicString& fileName)
{
    const fs::path folder(std::wstring(KZMainCfg::ProjectFolder().View()));
    return folder / FolderName / std::wstring(fileName.View());
}

KZDocumentResult Read(const KZBasicString& fileName, XmlDocument& document)
{
    if (KZDocumentStore* const store = KZMainCfg::DocumentStore())
        return store->Read(fileName, document);
    const fs::path file = FileOf(fileName);
    return IsMissingOrEmpty(file) ? KZDocumentResult{} : document.Load(file);
}

KZDocumentResult Write(const KZBasicString& fileName, XmlDocument& document)
{
    KZDocumentStore* const store = KZMainCfg::DocumentStore();
    if (!store) {
        const fs::path file = FileOf(fileName);
        std::error_code ignored;  // saving names the folder that is missing
        fs::create_directories(file.parent_path(), ignored);
        return document.Save(file);
    }
    KZDocumentResult kept = store->Write(fileName, document);
    if (kept)
        document.SetDirty(false);
    return kept;
}

void Say(unsigned format, const KZBasicString& what)
{
    AfxMessageBox(KZBasicString::Format(KZLoadString(format).c_str(), what.c_str()).c_str(),
                  MB_OK | MB_ICONEXCLAMATION);
}

}  // namespace

IMPLEMENT_DYNAMIC(KZBaseDeviceCfg, KZBaseDlg)

KZBaseDeviceCfg::KZBaseDeviceCfg(KZDriver* driver, unsigned templateId, CWnd* parent)
    : KZBaseDlg(templateId, parent), m_pDriver(driver), m_document(RootName)
{
}

KZBaseDeviceCfg::~KZBaseDeviceCfg() = default;

INT_PTR KZBaseDeviceCfg::DoModal()
{
    const bool read = Succeeds([this] {
        ReadDocument();
        return true;
    });
    if (!read) {
        AfxMessageBox(KZLoadString(KZ_IDS_DEVICE_NOT_OPENED).c_str());
        return -1;
    }
    return KZBaseDlg::DoModal();
}

KZBasicString KZBaseDeviceCfg::DocumentFileName(const KZBasicString& driverId)
{
    return KZDocumentFileName(driverId);
}

void KZBaseDeviceCfg::addUriParams(KZBasicString&) const {}

KZBasicString KZBaseDeviceCfg::DocumentName() const
{
    KZBasicString name = m_pDriver ? m_pDriver->DriverId() : KZBasicString();
    addUriParams(name);
    return DocumentFileName(name);
}

void KZBaseDeviceCfg::ReadDocument()
{
    m_readResult = m_document.Parse("<device/>");
    if (KZMainCfg::ProjectFolder().IsEmpty())
        return;
    m_readResult = Read(DocumentName(), m_document);
    if (!m_readResult)
        Say(KZ_IDS_DEVICE_NOT_READ, m_readResult.message);
}

bool KZBaseDeviceCfg::writeCfg(bool quiet)
{
    bool stored = false;
    const bool completed = Succeeds([&] {
        stored = StoreDocument(quiet);
        return true;
    });
    // Files that fail give results: what throws has run out of memory.
    if (!completed && !quiet)
        Say(KZ_IDS_DEVICE_NOT_SAVED, KZLoadString(KZS_OUT_OF_MEMORY));
    return stored;
}

bool KZBaseDeviceCfg::StoreDocument(bool quiet)
{
    const auto fail = [quiet](unsigned format, const KZBasicString& reason) {
        if (!quiet)
            Say(format, reason);
        return false;
    };
    if (KZMainCfg::ProjectFolder().IsEmpty())
        return fail(KZ_IDS_DEVICE_NO_PROJECT, {});
    if (!m_readResult)
        return fail(KZ_IDS_DEVICE_NOT_OVERWRITTEN, m_readResult.message);
    const KZDocumentResult saved = Write(DocumentName(), m_document);
    return saved ? true : fail(KZ_IDS_DEVICE_NOT_SAVED, saved.message);
}
