// Which devices differ from what the files hold, at the cost of those that were changed.
//
// Before a device is changed for the first time, its fingerprint is that of the files; it is remembered and compared
// after each change.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>

#include "Change.h"
#include "DocumentName.h"
#include "KZXmlDocument.h"

namespace plant {

using DriverIds = std::set<KZBasicString>;

// The hash of a document as it is now, saved or not; nothing for none.
using DocumentHashes = std::function<std::optional<std::uint64_t>(const std::string& name)>;

// What the main configuration document holds of a driver, as a number; 0 for nothing.
[[nodiscard]] std::uint64_t FingerprintOf(const XmlDocument& main, const KZBasicString& driverId);

class SavedDevices {
public:
    // Devices are about to be changed, which are as the files have them unless they were remembered before. Throws
    // std::bad_alloc.
    void Remember(const XmlDocument& main, std::span<const KZBasicString> driverIds, const DocumentHashes& documents);
    // These are new: the files have nothing of them, unless they were remembered before.
    void RememberMissing(std::span<const KZBasicString> driverIds);
    // They are changed now. Throws std::bad_alloc, and forgets all then.
    void Compare(const XmlDocument& main, std::span<const KZBasicString> driverIds, const DocumentHashes& documents);
    // These documents are saved as they are now, or everything is.
    void Saved(const XmlDocument& main, const Change& documents, const DocumentHashes& hashes) noexcept;
    void AllSaved() noexcept;
    // What the files hold is to be found out anew: nobody knows which devices differ.
    void Forget() noexcept;
    [[nodiscard]] bool IsKnown() const noexcept { return m_isKnown; }
    // What the files hold of these devices, with the main configuration document that was read from there.
    void Learn(const XmlDocument& saved, const XmlDocument& main, const DriverIds& driverIds,
               const DocumentHashes& savedDocuments, const DocumentHashes& documents);

    [[nodiscard]] const DriverIds& Changed() const noexcept { return m_changed; }

private:
    struct Saving {
        std::uint64_t main;
        std::string name;  // of its document
        std::optional<std::uint64_t> document;
    };
    void CompareOne(const XmlDocument& main, const KZBasicString& driverId, const Saving& saved,
                    const DocumentHashes& documents);

    std::map<KZBasicString, Saving> m_saved;
    DriverIds m_changed;
    bool m_isKnown = true;
};

}  // namespace plant
