#include "SavedDevices.h"

#include "DeviceSetups.h"
#include "SeenDocuments.h"

namespace plant {

std::uint64_t FingerprintOf(const XmlDocument& main, const KZBasicString& driverId)
{
    std::uint64_t whole = 0;
    for (const zep::SetupList& list : AllOfDevice) {
        const XmlDocument::XmlNode* const element = zep::FindSetup(main, list, driverId);
        whole = whole * 31 + (element ? element->Fingerprint() : 0);
    }
    return whole;
}

void SavedDevices::Remember(const XmlDocument& main, std::span<const KZBasicString> driverIds,
                            const DocumentHashes& documents)
{
    for (const KZBasicString& driverId : driverIds) {
        if (m_saved.contains(driverId))
            continue;
        std::string name = DeviceDocumentName(driverId);
        const auto hash = documents(name);
        m_saved.emplace(driverId, Saving{FingerprintOf(main, driverId), std::move(name), hash});
    }
}

void SavedDevices::RememberMissing(std::span<const KZBasicString> driverIds)
{
    for (const KZBasicString& driverId : driverIds)
        m_saved.emplace(driverId, Saving{0, DeviceDocumentName(driverId), std::nullopt});
}

void SavedDevices::CompareOne(const XmlDocument& main, const KZBasicString& driverId, const Saving& saved,
                              const DocumentHashes& documents)
{
    const std::uint64_t now = FingerprintOf(main, driverId);
    const bool isSame = now == saved.main && documents(saved.name) == saved.document;
    // A document of no device is none that anybody sees.
    const bool isNowhere = now == 0 && saved.main == 0;
    if (isSame || isNowhere)
        m_changed.erase(driverId);
    else
        m_changed.insert(driverId);
}

void SavedDevices::Compare(const XmlDocument& main, std::span<const KZBasicString> driverIds,
                           const DocumentHashes& documents)
{
    try {
        for (const KZBasicString& driverId : driverIds)
            if (const auto saved = m_saved.find(driverId); saved != m_saved.end())
                CompareOne(main, driverId, saved->second, documents);
    } catch (...) {
        Forget();
        throw;
    }
}

void SavedDevices::Saved(const XmlDocument& main, const Change& documents, const DocumentHashes& hashes) noexcept
{
    try {
        for (auto& [driverId, saved] : m_saved) {
            if (documents.contains(std::string(MainDocument)))
                saved.main = FingerprintOf(main, driverId);
            if (documents.contains(saved.name))
                saved.document = hashes(saved.name);
            CompareOne(main, driverId, saved, hashes);
        }
    } catch (const std::exception&) {
        Forget();
    }
}

void SavedDevices::AllSaved() noexcept
{
    Forget();
    m_isKnown = true;
}

void SavedDevices::Forget() noexcept
{
    m_saved.clear();
    m_changed.clear();
    m_isKnown = false;
}

void SavedDevices::Learn(const XmlDocument& saved, const XmlDocument& main, const DriverIds& driverIds,
                         const DocumentHashes& savedDocuments, const DocumentHashes& documents)
{
    for (const KZBasicString& driverId : driverIds) {
        std::string name = DeviceDocumentName(driverId);
        const auto hash = savedDocuments(name);
        const auto& [place, isNew] =
            m_saved.emplace(driverId, Saving{FingerprintOf(saved, driverId), std::move(name), hash});
        CompareOne(main, driverId, place->second, documents);
    }
    m_isKnown = true;
}

}  // namespace plant
