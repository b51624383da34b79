#include "BackgroundCheck.h"

BackgroundCheck::BackgroundCheck(plant::Project& project) : m_project(project)
{
    m_project.AddListener(*this);
}

// To begin takes a walk over all devices, which is not for the middle of a change.
void BackgroundCheck::OnProjectChanged(const plant::ProjectChange& change) noexcept
{
    try {
        m_due.insert(m_due.end(), change.driverIds.begin(), change.driverIds.end());
        m_isListDue = m_isListDue || change.isListChanged;
        m_isAllDue = m_isAllDue || change.isAll;
    } catch (const std::exception&) {
        m_isAllDue = true;
    }
}

bool BackgroundCheck::IsDue() const noexcept
{
    return m_isAllDue || m_isListDue || !m_due.empty() || m_checker.IsWorking();
}

void BackgroundCheck::Begin()
{
    if (!m_isAllDue && !m_isListDue && m_due.empty())
        return;
    m_obstacle.reset();
    if (m_isAllDue)
        m_checker.Restart();
    else
        m_checker.Restart({false, m_isListDue, m_due});
    m_isAllDue = false;
    m_isListDue = false;
    m_due.clear();
}

bool BackgroundCheck::Work(std::chrono::milliseconds slice)
{
    try {
        Begin();
        return m_checker.Work(slice);
    } catch (const plant::Refusal& refusal) {
        m_checker.Cancel();
        m_obstacle = {{}, {}, refusal.What()};
        return false;
    }
}

void BackgroundCheck::Cancel() noexcept
{
    m_checker.Cancel();
    m_isAllDue = false;
    m_isListDue = false;
    m_due.clear();
}

std::optional<int> BackgroundCheck::Percent() const noexcept
{
    return m_checker.IsWorking() ? std::optional(m_checker.Percent()) : std::nullopt;
}

plant::Findings BackgroundCheck::All() const
{
    plant::Findings all = m_checker.All();
    if (m_obstacle)
        all.push_back(*m_obstacle);
    return all;
}
