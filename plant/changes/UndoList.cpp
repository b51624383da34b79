#include "UndoList.h"

#include <algorithm>
#include <utility>

#include "KZMainCfg.h"
#include "project/DocumentName.h"

namespace plant {

struct UndoList::Step {
    Message name;
    std::vector<KZBasicString> driverIds;
    std::unique_ptr<XmlDocument::Change> main;  // null when it is the same
    Change before;                              // of the device documents that differ
    Change after;
    bool isListChanged = false;
    std::size_t bytes = 0;
};

namespace {

std::size_t SizeOf(const Change& documents)
{
    std::size_t size = 0;
    for (const auto& [name, bytes] : documents)
        size += name.size() + (bytes ? bytes->size() : 0);
    return size;
}

}  // namespace

UndoList::UndoList(Project& project) : m_project(project)
{
    m_project.AddListener(*this);
}

UndoList::~UndoList()
{
    m_project.RemoveListener(*this);
}

// Nothing can be undone in documents that were read anew.
void UndoList::OnProjectChanged(const ProjectChange& change) noexcept
{
    if (change.isAll)
        Clear();
}

void UndoList::Clear() noexcept
{
    m_steps.clear();
    m_position = 0;
    m_bytes = 0;
}

const Message* UndoList::UndoName() const noexcept
{
    return CanUndo() ? &m_steps[m_position - 1]->name : nullptr;
}

const Message* UndoList::RedoName() const noexcept
{
    return CanRedo() ? &m_steps[m_position]->name : nullptr;
}

bool UndoList::Do(Message name, std::span<const KZBasicString> driverIds, const std::function<void()>& change)
{
    if (m_project.m_doing) {
        change();
        return true;
    }
    m_project.RequireWritable();
    auto step = std::make_unique<Step>();
    step->name = std::move(name);
    step->driverIds.assign(driverIds.begin(), driverIds.end());
    for (const KZBasicString& driverId : driverIds) {
        std::string document = DeviceDocumentName(driverId);
        std::optional<std::string> bytes = m_project.Content(document);
        step->before.emplace(std::move(document), std::move(bytes));
    }
    m_project.RememberSaved(driverIds);
    Make(*step, change);
    const bool isComplete = FillIn(*step);
    const bool isAll = std::exchange(m_project.m_doing, {})->isAll;
    const ProjectChange told{isAll, step->isListChanged, driverIds};
    const bool isDifferent = isAll || !isComplete || step->main || !step->before.empty();
    m_project.CompareSaved(driverIds);
    if (isAll || !isComplete)
        Clear();
    else if (isDifferent)
        Keep(std::move(step));
    if (isDifferent)
        m_project.Tell(told);
    return isDifferent;
}

// What a change that throws has changed is taken back.
void UndoList::Make(const Step& step, const std::function<void()>& change)
{
    Change pending;
    for (const auto& [name, bytes] : step.before)
        if (m_project.m_pending.contains(name))
            pending.emplace(name, bytes);
    KZMainCfg::Get()->StartRecording();
    m_project.m_doing.emplace();
    try {
        change();
    } catch (...) {
        TakeBackHalf(step, pending);
        throw;
    }
}

void UndoList::TakeBackHalf(const Step& step, Change& pending) noexcept
{
    XmlDocument& main = *KZMainCfg::Get();
    if (const auto made = main.StopRecording())
        main.TakeBack(*made);
    for (const auto& [name, bytes] : step.before) {
        const auto now = m_project.m_pending.find(name);
        if (now == m_project.m_pending.end())
            continue;
        if (const auto before = pending.find(name); before != pending.end())
            now->second.swap(before->second);
        else
            m_project.m_pending.erase(now);
    }
    Project::Doing doing = *std::exchange(m_project.m_doing, {});
    if (doing.isAll)
        return m_project.TellAll();
    if (doing.devicesBefore)
        m_project.m_devices.swap(*doing.devicesBefore);
    m_project.ProtectOrTell();
    m_project.Tell({.driverIds = step.driverIds});
}

// What the change has made of the project. Returns false when it cannot be found out.
bool UndoList::FillIn(Step& step) noexcept
{
    step.main = KZMainCfg::Get()->StopRecording();
    step.isListChanged = m_project.m_doing->devicesBefore.has_value();
    try {
        for (auto document = step.before.begin(); document != step.before.end();) {
            const auto& [name, bytes] = *document;
            std::optional<std::string> now;
            const bool isSame =
                m_project.HashNow(name) == DocumentHash(bytes) || (now = m_project.Content(name)) == bytes;
            if (!isSame)
                step.after.emplace(name, std::move(now));
            document = isSame ? step.before.erase(document) : std::next(document);
        }
    } catch (const std::exception&) {
        return false;
    }
    step.bytes = (step.main ? step.main->Size() : 0) + SizeOf(step.before) + SizeOf(step.after);
    return true;
}

void UndoList::Keep(std::unique_ptr<Step> step) noexcept
{
    const auto drop = [this](auto first, auto last) {
        for (auto dropped = first; dropped != last; ++dropped)
            m_bytes -= (*dropped)->bytes;
        m_steps.erase(first, last);
    };
    drop(m_steps.begin() + static_cast<std::ptrdiff_t>(m_position), m_steps.end());
    try {
        m_bytes += step->bytes;
        m_steps.push_back(std::move(step));
        ++m_position;
    } catch (const std::bad_alloc&) {
        return Clear();
    }
    while (m_steps.size() > MostSteps || (m_bytes > MostBytes && m_steps.size() > LeastSteps)) {
        drop(m_steps.begin(), m_steps.begin() + 1);
        --m_position;
    }
}

bool UndoList::Undo()
{
    if (m_project.m_doing || !CanUndo() || !Go(*m_steps[m_position - 1], true))
        return false;
    --m_position;
    TellOf(*m_steps[m_position]);
    return true;
}

bool UndoList::Redo()
{
    if (m_project.m_doing || !CanRedo() || !Go(*m_steps[m_position], false))
        return false;
    ++m_position;
    TellOf(*m_steps[m_position - 1]);
    return true;
}

bool UndoList::Go(Step& step, bool isBack)
{
    const Change& from = isBack ? step.after : step.before;
    const Change& to = isBack ? step.before : step.after;
    Change pending;
    for (const auto& [name, bytes] : to)
        if (!m_project.m_seen.Saw(name, bytes))
            pending.emplace(name, bytes);
    m_project.RememberSaved(step.driverIds);
    const auto isThere = [this](const auto& document) {
        return m_project.HashNow(document.first) == DocumentHash(document.second);
    };
    if (!std::all_of(from.begin(), from.end(), isThere) || !GoInMain(step, isBack)) {
        Clear();
        return false;
    }
    try {
        if (step.isListChanged)
            m_project.ReadDevicesAnew();
    } catch (...) {
        GoInMain(step, !isBack);
        throw;
    }
    for (const auto& [name, bytes] : to)
        m_project.m_pending.erase(name);
    m_project.m_pending.merge(pending);
    return true;
}

bool UndoList::GoInMain(Step& step, bool isBack) noexcept
{
    XmlDocument& main = *KZMainCfg::Get();
    return !step.main || (isBack ? main.TakeBack(*step.main) : main.MakeAgain(*step.main));
}

void UndoList::TellOf(const Step& step) noexcept
{
    m_project.CompareSaved(step.driverIds);
    m_project.ProtectOrTell();
    m_project.Tell({.isListChanged = step.isListChanged, .driverIds = step.driverIds});
}

}  // namespace plant
