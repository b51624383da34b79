// Changes of a document that are taken back and made again.
#include "DocumentState.h"

namespace {

// What a tree takes, about.
std::size_t SizeOf(pugi::xml_node node, bool isWhole) noexcept
{
    constexpr std::size_t structure = 64;
    std::size_t size = structure + std::wcslen(node.value()) * sizeof(wchar_t);
    if (isWhole)
        for (const pugi::xml_node child : node)
            size += SizeOf(child, true);
    return size;
}

}  // namespace

XmlDocument::Change::Change() : m_record(std::make_unique<Record>()) {}

XmlDocument::Change::~Change()
{
    if (const std::shared_ptr<State> state = m_record->state.lock())
        state->edit.Destroy(m_record->steps, m_record->isTakenBack,
                            [&](const void* element) { state->nodes.erase(element); });
}

// What was put in is in the list node by node, what was taken away only with its root.
std::size_t XmlDocument::Change::Size() const noexcept
{
    std::size_t size = m_record->steps.size() * sizeof(TreeStep);
    if (!m_record->state.expired())
        for (const TreeStep& step : m_record->steps)
            size += SizeOf(step.node, !step.isAdded);
    return size;
}

void XmlDocument::StartRecording()
{
    State& state = *m_state;
    std::unique_ptr<Change> change(new Change);
    change->m_record->state = m_state;
    state.edit.StartRecording();
    state.Keep();
    change->m_record->before = state.version;
    state.recorded = std::move(change);
}

std::unique_ptr<XmlDocument::Change> XmlDocument::StopRecording() noexcept
{
    State& state = *m_state;
    std::unique_ptr<Change> change = std::move(state.recorded);
    if (!change)
        return nullptr;
    state.Keep();
    change->m_record->steps = state.edit.StopRecording();
    change->m_record->after = state.version;
    const bool isDifferent = change->m_record->before.number != state.version.number;
    return isDifferent ? std::move(change) : nullptr;
}

bool XmlDocument::TakeBack(Change& change) noexcept
{
    Change::Record& record = *change.m_record;
    State& state = *m_state;
    if (record.state.lock() != m_state || state.recorded || record.isTakenBack ||
        state.version.number != record.after.number)
        return false;
    state.Keep();
    state.edit.Reverse(record.steps);
    record.isTakenBack = true;
    state.Become(record.before);
    return true;
}

bool XmlDocument::MakeAgain(Change& change) noexcept
{
    Change::Record& record = *change.m_record;
    State& state = *m_state;
    if (record.state.lock() != m_state || state.recorded || !record.isTakenBack ||
        state.version.number != record.before.number)
        return false;
    state.Keep();
    state.edit.Repeat(record.steps);
    record.isTakenBack = false;
    state.Become(record.after);
    return true;
}
