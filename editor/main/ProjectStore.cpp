#include "ProjectStore.h"

#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "project/DocumentName.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"

namespace {

std::string NameOf(const KZBasicString& fileName)
{
    return plant::DeviceDocumentOfFile(ToUtf8(fileName.View()));
}

}  // namespace

ProjectStore::ProjectStore(plant::Project& project, std::string cause) : m_project(project), m_cause(std::move(cause))
{
    KZMainCfg::SetDocumentStore(this);
}

ProjectStore::~ProjectStore()
{
    KZMainCfg::SetDocumentStore(nullptr);
}

KZDocumentResult ProjectStore::Read(const KZBasicString& fileName, XmlDocument& document)
{
    try {
        m_project.ReadDeviceDocument(NameOf(fileName), document);
        return {};
    } catch (const plant::Refusal& refusal) {
        return {false, PlantMessage(refusal.What())};
    }
}

KZDocumentResult ProjectStore::Write(const KZBasicString& fileName, const XmlDocument& document)
{
    m_refused.reset();
    try {
        const auto outcome = m_project.WriteDocument(NameOf(fileName), document, m_cause);
        // Who takes the other program's document does not want his own any more: the dialog is done with it.
        if (outcome != plant::Project::Outcome::Cancelled)
            return {};
        return {false, EditorText(IDS_WRITE_CANCELLED)};
    } catch (const plant::Refusal& refusal) {
        m_refused = PlantMessage(refusal.What());
        return {false, *m_refused};
    }
}
