// The project as the host's store of device documents: what the module's device dialog reads and writes.
#pragma once

#include <optional>
#include <string>

#include "KZDocumentStore.h"
#include "project/Project.h"

class ProjectStore : public KZDocumentStore {
public:
    // Is the host's store as long as it lives; the project must live longer. The cause is for the history.
    ProjectStore(plant::Project& project, std::string cause);
    ~ProjectStore();
    ProjectStore(const ProjectStore&) = delete;
    ProjectStore& operator=(const ProjectStore&) = delete;

    KZDocumentResult Read(const KZBasicString& fileName, XmlDocument& document) override;
    KZDocumentResult Write(const KZBasicString& fileName, const XmlDocument& document) override;

    // Why the last Write was refused; nothing when it was not.
    [[nodiscard]] const std::optional<std::wstring>& Refused() const noexcept { return m_refused; }

private:
    plant::Project& m_project;
    std::string m_cause;
    std::optional<std::wstring> m_refused;
};
