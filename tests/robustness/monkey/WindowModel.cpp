#include "WindowModel.h"

#include <utility>

#include "KZMainCfg.h"
#include "changes/UndoList.h"
#include "project/DocumentFiles.h"
#include "project/DocumentName.h"

Documents DocumentsIn(const plant::Path& folder)
{
    Documents documents;
    for (const auto& [name, file] : plant::DocumentFilesIn(plant::RealDisk(), folder))
        documents.emplace(name, plant::RealDisk().Read(plant::FileOf(folder, name)).value_or("gone"));
    return documents;
}

Documents WindowModel::Shown() const
{
    Documents documents = m_saved;
    documents[std::string(plant::MainDocument)] = KZMainCfg::Get()->Serialize();
    for (const auto& [name, bytes] : m_project.Pending())
        if (bytes)
            documents[name] = *bytes;
        else
            documents.erase(name);
    return documents;
}

bool WindowModel::Changed()
{
    Documents shown = Shown();
    if (shown == m_now)
        return false;
    m_undo.push_back(std::exchange(m_now, std::move(shown)));
    if (m_undo.size() > plant::UndoList::MostSteps)
        m_undo.pop_front();
    m_redo.clear();
    return true;
}

void WindowModel::Go(Steps& from, Steps& to)
{
    if (from.empty())
        return;
    to.push_back(std::exchange(m_now, std::move(from.back())));
    from.pop_back();
}

void WindowModel::Saved()
{
    m_saved = m_now;
}

void WindowModel::ReadAnew()
{
    m_now = m_saved = OnDisk();
    m_undo.clear();
    m_redo.clear();
}

std::string WindowModel::Difference() const
{
    const Documents shown = Shown();
    for (const auto& [name, bytes] : m_now) {
        const auto found = shown.find(name);
        if (found == shown.end() || found->second != bytes)
            return name + " is not the model's";
    }
    return shown.size() == m_now.size() ? "" : "there are documents that the model lacks";
}
